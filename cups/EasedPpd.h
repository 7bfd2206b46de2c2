// The contents of a PPD with many options, made easy for libcups 2.4.2: it looks for each option
// that it opens through those of the same group, and through all attributes before it for a
// default, so that the time it needs grows with the square of their number. It gets the others, and
// most of the plain ones are put back afterwards (see EasedRecords.h).
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "cups/PpdOptionRecords.h"

namespace cutline {

struct EasedPpd {
  std::string contents;
  // The options of each group that has some to be left out, with places for those that the contents
  // still have. The names are those in the contents that it was made of.
  std::map<std::string_view, OptionRecords> groups;
};

// A PPD with no more options needs no ease: it is read in some milliseconds.
inline constexpr std::size_t kFewOptions = 500;

// Nothing for a PPD with few options, or with signs that libcups reads in a way of its own, or
// where there is no memory.
std::optional<EasedPpd> easedPpd(std::string_view contents, std::size_t fewOptions = kFewOptions);

}  // namespace cutline
