#include "composition/reader/PageChoice.h"

#include <algorithm>
#include <string>

#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

bool isIn(PageSet set, int page) {
  const bool isOdd = page % 2 == 0;  // as people count
  return set == PageSet::all || isOdd == (set == PageSet::odd);
}

}  // namespace

std::vector<int> chosenPages(const PageSelection& selection, int pageCount) {
  if (!selection.ranges.checkWithin(pageCount))
    throw Refusal{DocumentProblem::pageMissing, std::to_string(pageCount)};
  std::vector<int> pages;
  for (int page = 0; page < pageCount; ++page) {
    if (selection.ranges.contains(page) && isIn(selection.set, page)) pages.push_back(page);
  }
  if (selection.isReversed) std::reverse(pages.begin(), pages.end());
  const auto most = static_cast<std::size_t>(std::max(selection.most, 0));
  if (most > 0 && pages.size() > most) pages.resize(most);
  if (pages.empty()) throw Refusal{DocumentProblem::empty, {}};
  return pages;
}

}  // namespace cutline
