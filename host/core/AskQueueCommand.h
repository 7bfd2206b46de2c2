// --ask-queue: makes queues on which jobs wait for the dialog, takes them away, and lists them.
#pragma once

#include "base/Result.h"
#include "host/core/HeadlessSession.h"

namespace cutline {

class PluginLoader;

Result<Done> runAskQueue(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
