// A PPD's lines, as libcups reads them: each may end with either sign or with both.
#pragma once

#include <algorithm>
#include <string_view>

namespace cutline {

// Calls function(line, end) for each line, with the characters that end it: none after the last.
template <typename Function>
void forEachPpdLine(std::string_view contents, const Function& function) {
  // Each sign is looked for once: most PPDs have only one of them.
  std::size_t returned = contents.find('\r');
  std::size_t fed = contents.find('\n');
  for (std::size_t start = 0; start < contents.size();) {
    if (returned < start) returned = contents.find('\r', start);
    if (fed < start) fed = contents.find('\n', start);
    const std::size_t stop = std::min({returned, fed, contents.size()});
    const std::size_t endSize = fed == stop + 1 && returned == stop ? 2 : 1;
    const auto end = contents.substr(stop, endSize);
    function(contents.substr(start, stop - start), end);
    start = stop + end.size();
  }
}

}  // namespace cutline
