// A module of the program that is loaded on demand (the dialog, the document renderer).
#pragma once

#include <string>

#include "base/Result.h"

namespace cutline {

class DocumentRenderer;
class Installation;

// Loads a module, asks it by `buildSymbol` which build it is of and, if that is this one, answers
// the address of `symbol`; the module stays loaded. The error names the file and the reason.
Result<void*> loadModule(const std::string& path, const char* buildSymbol, const char* symbol);

// The document module's renderer. May take a while at the first call.
Result<DocumentRenderer*> loadDocumentRenderer(const Installation& installation);

}  // namespace cutline
