// Reads documents and writes them as one PDF on label pages. Runs in a confined process: whatever
// a document does to its reader, nobody else is there.
#pragma once

#include <vector>

#include "composition/Composition.h"

namespace cutline {

class Typesetter;

// `documents` are open files, one for each of the request's names, read from their beginnings;
// `output` is a file open for writing, empty. All stay the caller's. `typesetter` is borrowed; null
// where its module is missing, which fails for what needs it. PostScript has been made a PDF
// before. Where the report has a failure, what `output` holds says nothing.
CompositionReport composeDocuments(const CompositionRequest& request,
                                   const std::vector<int>& documents, int output,
                                   Typesetter* typesetter);

}  // namespace cutline
