#include "samples/documents/generator/Barcode.h"

#include <array>
#include <cstddef>

namespace cutline::documents {
namespace {

constexpr int kNarrow = 1;
constexpr int kWide = 3;

// Two of the five elements of a digit are wide.
constexpr std::array<std::string_view, 10> kDigits = {"nnwwn", "wnnnw", "nwnnw", "wwnnn", "nnwnw",
                                                      "wnwnn", "nwwnn", "nnnww", "wnnwn", "nwnwn"};

int widthOf(char element) { return element == 'w' ? kWide : kNarrow; }

}  // namespace

std::vector<int> barcodeOf(std::string_view digits) {
  std::vector<int> widths = {kNarrow, kNarrow, kNarrow, kNarrow};
  for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
    const std::string_view bars = kDigits.at(static_cast<std::size_t>(digits[at] - '0'));
    const std::string_view gaps = kDigits.at(static_cast<std::size_t>(digits[at + 1] - '0'));
    for (std::size_t element = 0; element < bars.size(); ++element) {
      widths.push_back(widthOf(bars[element]));
      widths.push_back(widthOf(gaps[element]));
    }
  }
  widths.insert(widths.end(), {kWide, kNarrow, kNarrow});
  return widths;
}

}  // namespace cutline::documents
