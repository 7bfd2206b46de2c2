// What a PPD's constraint records forbid together.
#pragma once

#include <vector>

#include "cups/PpdFile.h"

namespace cutline {

// The pairs of marked choices that some record of the PPD forbids, in the records' order, each
// once.
std::vector<Conflict> brokenConstraints(ppd_file_s* ppd);

}  // namespace cutline
