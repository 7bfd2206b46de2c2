#include "composition/reader/PageChoice.h"

#include <string>

#include "composition/PickedPages.h"
#include "composition/reader/Refusal.h"

namespace cutline {

std::vector<int> chosenPages(const PageSelection& selection, int pageCount) {
  if (!selection.ranges.checkWithin(pageCount))
    throw Refusal{DocumentProblem::pageMissing, std::to_string(pageCount)};
  std::vector<int> pages = pickedPages(selection, pageCount);
  if (pages.empty()) throw Refusal{DocumentProblem::empty, {}};
  return pages;
}

}  // namespace cutline
