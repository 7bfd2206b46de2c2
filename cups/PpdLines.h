// A PPD's lines, as libcups reads them: each may end with either sign or with both.
#pragma once

#include <algorithm>
#include <string_view>

namespace cutline {

// Calls function(line, end) for each line, with the characters that end it: none after the last.
template <typename Function>
void forEachPpdLine(std::string_view contents, const Function& function) {
  while (!contents.empty()) {
    const auto size = std::min(contents.find_first_of("\r\n"), contents.size());
    const std::size_t endSize = contents.substr(size).starts_with("\r\n") ? 2 : 1;
    const auto end = contents.substr(size, endSize);
    function(contents.substr(0, size), end);
    contents.remove_prefix(size + end.size());
  }
}

}  // namespace cutline
