// A module of the program that is loaded on demand (the dialog).
#pragma once

#include <string>

#include "base/Result.h"

namespace cutline {

// Loads a module, asks it by `buildSymbol` which build it is of and, if that is this one, answers
// the address of `symbol`; the module stays loaded. The error names the file and the reason.
Result<void*> loadModule(const std::string& path, const char* buildSymbol, const char* symbol);

}  // namespace cutline
