// Which pages of a job's documents become labels.
#pragma once

#include <vector>

#include "composition/Composition.h"

namespace cutline {

// The selected of so many pages, counted from 0 over all documents, in the order of printing. A
// page that the ranges name and that is not there is left out.
std::vector<int> pickedPages(const PageSelection& selection, int pageCount);

}  // namespace cutline
