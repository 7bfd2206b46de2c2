// Sends a document as a print job and cancels it. Every call may block on the server: never on the
// thread that draws.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/JobStatus.h"
#include "cups/ServerOptions.h"

namespace cutline {

struct PrintRequest {
  DestinationName destination;
  std::string path;  // the document; "-" is no file: callers spool standard input first
  std::string title;
  OptionList options;             // sent as they are
  std::string documentName = {};  // what the server calls the document; the file's name when empty
  long setUpSince = 0;            // of the printer that the options are for; 0 when not known
};

// Called while the document is sent, with the bytes sent so far and the document's size; answering
// false gives the job up: it is cancelled and nothing is printed.
using SpoolProgress = std::function<bool(std::uint64_t sent, std::uint64_t total)>;

// The job's number. Where the document does not arrive whole, for whatever reason, the job is taken
// back.
Result<int> submitJob(const ServerOptions& server, const PrintRequest& request,
                      const SpoolProgress& progress);
// Whether that error says that the job may be there all the same.
bool leavesJobInDoubt(const Error& error);
Result<Done> cancelJob(const ServerOptions& server, const DestinationName& destination, int jobId);

}  // namespace cutline
