// Page ranges as people type them and as IPP wants them.
#pragma once

#include <string>

#include "base/Result.h"

namespace cutline {

// "2", "1-4,7", "5-" with blanks anywhere, in ascending order: the same without blanks. An error
// says what is wrong. Empty text means all pages and stays empty.
Result<std::string> normalizedPageRanges(const std::string& text);

}  // namespace cutline
