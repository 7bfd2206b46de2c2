#include "composition/PickedPages.h"

#include <algorithm>

namespace cutline {

namespace {

bool isIn(PageSet set, int page) {
  const bool isOdd = page % 2 == 0;  // as people count
  return set == PageSet::all || isOdd == (set == PageSet::odd);
}

}  // namespace

std::vector<int> pickedPages(const PageSelection& selection, int pageCount) {
  std::vector<int> pages;
  for (int page = 0; page < pageCount; ++page) {
    if (selection.ranges.contains(page) && isIn(selection.set, page)) pages.push_back(page);
  }
  if (selection.isReversed) std::reverse(pages.begin(), pages.end());
  const auto most = static_cast<std::size_t>(std::max(selection.most, 0));
  if (most > 0 && pages.size() > most) pages.resize(most);
  return pages;
}

}  // namespace cutline
