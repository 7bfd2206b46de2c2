// Sentences of the parts without a toolkit, in the dialog's language.
#pragma once

#include <QString>

#include "base/Sentence.h"

namespace cutline {

QString translated(const Sentence& sentence);

// The same for a line of its own: an error's words begin with a capital, a name stays as it is.
QString asLine(const Sentence& sentence);

}  // namespace cutline
