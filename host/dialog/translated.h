// Sentences of the parts without a toolkit, in the dialog's language.
#pragma once

#include <QString>

#include "cups/Sentence.h"

namespace cutline {

QString translated(const Sentence& sentence);

}  // namespace cutline
