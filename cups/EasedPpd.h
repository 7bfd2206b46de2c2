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
#include <vector>

#include "cups/PpdOptionBlock.h"

namespace cutline {

struct EasedOption {
  std::string_view keyword;
  std::optional<OptionBlock> leftOut;  // nothing for an option that the contents still have
};

// What it points into are the contents that it was made of.
struct EasedPpd {
  std::string contents;
  // The options, in their order, of each group of which some were left out.
  std::map<std::string_view, std::vector<EasedOption>> groups;
};

// A PPD with no more options needs no ease: it is read in some milliseconds.
inline constexpr std::size_t kFewOptions = 500;

// Nothing for a PPD with few options, or with signs that libcups reads in a way of its own.
std::optional<EasedPpd> easedPpd(std::string_view contents, std::size_t fewOptions = kFewOptions);

}  // namespace cutline
