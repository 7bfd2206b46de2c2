// The contents of a PPD with many options, made easy for libcups 2.4.2: it looks for each option
// that it opens through those of the same group, and through all attributes before it for a
// default, so that the time it needs grows with the square of their number.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace cutline {

// What it points into are the contents that it was made of.
struct EasedPpd {
  std::string contents;
  // Statements that were left out: the default choice of each option.
  std::unordered_map<std::string_view, std::string_view> defaults;
  // The groups whose options were given in parts: that of each part, in the order of the parts.
  std::vector<std::string_view> parts;
};

struct EasingCounts {
  std::size_t fewOptions = 500;  // what has no more needs no ease: it is read in some milliseconds
  std::size_t inPart = 50;       // options
};

// Nothing for a PPD with few options, or with signs that libcups reads in a way of its own.
std::optional<EasedPpd> easedPpd(std::string_view contents, const EasingCounts& counts = {});

// What a group is called that has a part of another group's options.
std::string partName(std::size_t part);
bool isPart(std::string_view group);

}  // namespace cutline
