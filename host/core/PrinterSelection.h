// The printer, or the PPD file, that a command line names.
#pragma once

#include "base/Result.h"
#include "host/core/CommandLine.h"
#include "host/core/PrintValues.h"

namespace cutline {

// Finds the destination, fetches its PPD, and checks the options that were typed against it. With
// --ppd the file is read instead and the destination has no name. May block on the server: never on
// the thread that draws.
Result<PrinterChoice> selectPrinter(const CommandLine& commandLine);

// The PPD of a destination that is known already, such as one of listDestinations. May block.
Result<PrinterChoice> findDriver(const ServerOptions& server, const Destination& destination);
// The same, and what the printer says of itself where it can be asked.
Result<PrinterChoice> selectPrinter(const ServerOptions& server, const Destination& destination);

}  // namespace cutline
