// A module of the program that is loaded on demand (the dialog, the document renderer).
#pragma once

#include <cstdint>
#include <string>

#include "base/Result.h"

namespace cutline {

class DocumentRenderer;
class Installation;

// Loads a module, asks its ABI function and answers the address of `symbol`; the module stays
// loaded. The error names the file and the reason.
Result<void*> loadModule(const std::string& path, const char* abiSymbol, std::uint32_t abi,
                         const char* symbol);

// The document module's renderer. May take a while at the first call.
Result<DocumentRenderer*> loadDocumentRenderer(const Installation& installation);

}  // namespace cutline
