// Interleaved 2 of 5: two digits at a time, one in five bars, one in the five gaps between them.
#pragma once

#include <string_view>
#include <vector>

namespace cutline::documents {

// The widths of bars and gaps in turn, in narrow bars, beginning and ending with a bar. `digits`
// has an even number of digits, and nothing else.
std::vector<int> barcodeOf(std::string_view digits);

}  // namespace cutline::documents
