// What is wrong with a PPD: why libcups could not read it, and which marked choices it forbids
// together.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/Result.h"
#include "cups/PpdFile.h"

namespace cutline {

// Why libcups could not read a PPD, in words that help whoever wrote it. To be called right after
// the reading failed, on the same thread. `name` is what people call the PPD; `text` is its
// contents, or empty where they cannot be read again.
Error ppdProblem(const Sentence& name, std::string_view text);

// The pairs of marked choices that some record of the PPD forbids, in the records' order, each
// once.
std::vector<Conflict> brokenConstraints(ppd_file_s* ppd);

// How many records there are to look through for them.
std::size_t constraintCount(const ppd_file_s* ppd);

}  // namespace cutline
