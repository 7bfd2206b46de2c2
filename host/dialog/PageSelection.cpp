#include "host/dialog/PageSelection.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace cutline {
namespace {

int numberIn(std::string_view text, int otherwise) {
  int number = otherwise;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::pair<int, int> rangeIn(std::string_view text) {
  const std::size_t dash = text.find('-');
  const int first = numberIn(text.substr(0, dash), 1);
  if (dash == std::string_view::npos) return {first, first};
  return {first, numberIn(text.substr(dash + 1), std::numeric_limits<int>::max())};
}

}  // namespace

PageSelection::PageSelection(const std::string& ranges) {
  std::string_view rest = ranges;
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    mRanges.push_back(rangeIn(rest.substr(0, comma)));
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
}

bool PageSelection::contains(int page) const noexcept {
  if (mRanges.empty()) return true;
  return std::any_of(mRanges.begin(), mRanges.end(), [page](const auto& range) {
    return page + 1 >= range.first && page + 1 <= range.second;
  });
}

int PageSelection::countOf(int pageCount) const noexcept {
  int count = 0;
  for (int page = 0; page < pageCount; ++page) count += contains(page) ? 1 : 0;
  return count;
}

}  // namespace cutline
