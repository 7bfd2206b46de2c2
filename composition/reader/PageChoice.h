// Which pages of a job's documents become labels.
#pragma once

#include <vector>

#include "composition/Composition.h"

namespace cutline {

// The chosen of so many pages, counted from 0 over all documents, in the order of printing. Throws
// a Refusal where none is chosen, or one that is not there.
std::vector<int> chosenPages(const PageSelection& selection, int pageCount);

}  // namespace cutline
