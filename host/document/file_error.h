// The error of a file that cannot be shown.
#pragma once

#include "base/Result.h"

class QString;

namespace cutline {

// "FILE: REASON".
Error aboutFile(const QString& path, Sentence reason);

}  // namespace cutline
