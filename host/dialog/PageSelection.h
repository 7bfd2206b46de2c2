// Which pages of a document a page range picks.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace cutline {

class PageSelection {
 public:
  // Every page.
  PageSelection() = default;
  // `ranges` as normalizedPageRanges answers them: "2", "1-4,7", "5-"; empty for every page.
  explicit PageSelection(const std::string& ranges);

  // Pages count from 0.
  bool contains(int page) const noexcept;
  // How many of the first `pageCount` pages are picked.
  int countOf(int pageCount) const noexcept;

 private:
  std::vector<std::pair<int, int>> mRanges;  // first and last page, counted from 1
};

}  // namespace cutline
