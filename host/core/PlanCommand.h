// --plan: where the tape is cut, in words or for other programs.
#pragma once

#include <optional>

#include "host/core/HeadlessSession.h"

namespace cutline {

// The pages of the command line's documents; nothing without a document.
Result<std::optional<int>> pagesToPlan(const CommandLine& line, HeadlessSession& session);

// For the documents of the command line; without one, for one label, which is remarked. The forms
// are those of docs/cut-plan.md.
Result<Done> showPlan(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
