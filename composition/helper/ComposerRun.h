// The composer from its documents to its report, for the programs that it comes as.
#pragma once

#include <vector>

#include "base/FileDescriptor.h"
#include "composition/helper/ComposingTask.h"

namespace cutline {

// `files` are the PDF to write, and the documents. Reads the request from standard input, writes
// the report to standard output, and ends the process.
[[noreturn]] void runComposer(std::vector<FileDescriptor> files, ModuleLoader load);

}  // namespace cutline
