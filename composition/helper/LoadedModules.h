// The modules beside this program, each loaded once it is asked for.
#pragma once

#include "composition/reader/ReaderModules.h"

namespace cutline {

// A ModuleLoader. What is not installed stays null; what is lives as long as the process.
void loadModule(DocumentKind kind, ReaderModules& modules);

}  // namespace cutline
