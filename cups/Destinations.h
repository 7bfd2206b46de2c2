// The destinations of a print server and the options that the user saved for them. Every call may
// block on the server: never on the thread that draws.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/ServerOptions.h"

namespace cutline {

Result<std::vector<Destination>> listDestinations(const ServerOptions& server);

// The named destination, or the user's default one (LPDEST, PRINTER, saved default, server's
// default). An unknown name is an error that lists the known ones.
Result<Destination> findDestination(const ServerOptions& server,
                                    const std::optional<DestinationName>& name);

// Saves the options as those of the destination or instance, as lpoptions does, and keeps every
// other destination, instance and the default that the user's file holds, also those that this
// server does not know.
Result<Done> saveDestinationOptions(const ServerOptions& server, const DestinationName& name,
                                    const OptionList& options);

// Forgets a saved instance; the same care for everything else.
Result<Done> removeInstance(const ServerOptions& server, const DestinationName& name);

}  // namespace cutline
