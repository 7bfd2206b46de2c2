// The destinations of a print server and the options that the user saved for them. Calls may
// block on the server, and those that save on other programs: never on the thread that draws.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/ServerOptions.h"

namespace cutline {

class ServerConnection;

Result<std::vector<Destination>> listDestinations(const ServerOptions& server);

// The named destination, or the user's default one (LPDEST, PRINTER, saved default, server's
// default). An unknown name is an error that lists the known ones.
Result<Destination> findDestination(const ServerOptions& server,
                                    const std::optional<DestinationName>& name);
// The same over a connection that is there already.
Result<Destination> findDestinationOn(const ServerConnection& connection,
                                      const std::optional<DestinationName>& name);

// Whether there is a print server at all, whatever it says. May block for a while.
bool serverAnswers(const ServerOptions& server);

// Saves the options as those of the destination or instance, as lpoptions does, in the user's file.
// No server is asked.
Result<Done> saveDestinationOptions(const DestinationName& name, const OptionList& options);

// Forgets a saved instance.
Result<Done> removeInstance(const DestinationName& name);

}  // namespace cutline
