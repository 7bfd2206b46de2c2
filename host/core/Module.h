// A module of the program that is loaded on demand (the dialog).
#pragma once

#include <string>

#include "base/Result.h"

namespace cutline {

// Loads a module of the very build of this program and answers the address of `symbol`; the module
// stays loaded. Whatever speaks against it is found before any of its code runs. `path` is an
// absolute one without links. The error names the file and the reason.
Result<void*> loadModule(const std::string& path, const char* symbol);

}  // namespace cutline
