// Lists with commas.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cutline {

// The parts between the commas, as they stand; one empty part for an empty text.
std::vector<std::string> partsBetweenCommas(std::string_view text);

// "one, two, three", for people.
std::string listed(const std::vector<std::string>& names);

}  // namespace cutline
