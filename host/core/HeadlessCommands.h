// The commands that need no window: --print, --plan, --options and their like.
#pragma once

#include "base/Result.h"
#include "host/core/CommandLine.h"

namespace cutline {

class PluginLoader;
struct Streams;

// Runs the command over plain controls. Notes are of what a panel's rule changes, of conflicts, and
// of panels that could not be loaded. May block on the server.
Result<Done> runHeadlessCommand(const CommandLine& line, PluginLoader& plugIns,
                                const Streams& streams);

}  // namespace cutline
