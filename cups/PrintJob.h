// Sends a document as a print job and follows it. Every call may block on the server: never on the
// thread that draws.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "cups/Destination.h"
#include "cups/Result.h"
#include "cups/ServerOptions.h"

namespace cutline {

enum class JobState { pending, held, processing, stopped, canceled, aborted, completed };

struct JobStatus {
  JobState state = JobState::pending;
  std::string message;               // the printer's own words, may be empty
  std::vector<std::string> reasons;  // IPP job-state-reasons

  bool isFinal() const noexcept;
  // The state in plain words, such as "Printing" or "Waiting - the printer is paused".
  std::string text() const;
};

struct PrintRequest {
  DestinationName destination;
  std::string path;  // the document; "-" is no file: callers spool standard input first
  std::string title;
  OptionList options;  // sent as they are
};

// Called while the document is sent, with the bytes sent so far and the document's size; answering
// false gives the job up: it is cancelled and nothing is printed.
using SpoolProgress = std::function<bool(std::uint64_t sent, std::uint64_t total)>;

// The job's number. Where the document does not arrive whole, for whatever reason, the job is taken
// back.
Result<int> submitJob(const ServerOptions& server, const PrintRequest& request,
                      const SpoolProgress& progress);
Result<JobStatus> jobStatus(const ServerOptions& server, const DestinationName& destination,
                            int jobId);
Result<Done> cancelJob(const ServerOptions& server, const DestinationName& destination, int jobId);

}  // namespace cutline
