// PostScript is a program: an interpreter makes a PDF of it, in a confined process of its own.
#pragma once

#include <optional>

#include "base/FileDescriptor.h"
#include "composition/Composition.h"
#include "composition/helper/Confinement.h"

namespace cutline {

struct PostScriptProblem {
  DocumentProblem problem = DocumentProblem::broken;
  std::string detail;
};

struct PostScriptResult {
  FileDescriptor pdf;  // a nameless file, where there is no problem
  std::optional<PostScriptProblem> problem;
};

inline constexpr ProcessLimits kInterpreterLimits = {
    .memory = 512U << 20U, .fileSize = 128U << 20U, .cpuSeconds = 30, .files = 64};

// `document` is an open file, read from its beginning. Only the first `most` pages, or all for 0.
// The interpreter keeps its own files in a folder that goes with it, and may write nowhere else.
PostScriptResult pdfOfPostScript(int document, int most,
                                 const ProcessLimits& limits = kInterpreterLimits);

}  // namespace cutline
