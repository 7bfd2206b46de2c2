// The commands that need no window: --print, --plan, --options and their like.
#pragma once

#include <iosfwd>

#include "base/Result.h"
#include "host/core/CommandLine.h"

namespace cutline {

class PluginLoader;

// Runs the command over plain controls. `out` gets what was asked for, `notes` one line "cutline:
// ..." for each thing to know that is no failure: what a panel's rule changes, conflicts, panels
// that could not be loaded. May block on the server.
Result<Done> runHeadlessCommand(const CommandLine& line, PluginLoader& plugIns, std::ostream& out,
                                std::ostream& notes);

}  // namespace cutline
