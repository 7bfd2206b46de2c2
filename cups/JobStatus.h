// How far a print job has come.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/ServerOptions.h"

namespace cutline {

class ServerConnection;

enum class JobState { pending, held, processing, stopped, canceled, aborted, completed };

struct JobStatus {
  JobState state = JobState::pending;
  std::string message;               // the printer's own words, may be empty
  std::vector<std::string> reasons;  // IPP job-state-reasons
  // How many pages the server has counted; nothing where it counts none, as for what goes to the
  // printer as it is.
  std::optional<int> pages = std::nullopt;
  // How much of its document the server has, in kilobytes, begun ones included; nothing where it
  // does not tell.
  std::optional<int> kilobytes = std::nullopt;

  bool isFinal() const noexcept;
  // Whether one of the reasons tells what the job waits for.
  bool saysMoreThanItsState() const;
  // The state in plain words, such as "Printing" or "Waiting - the printer is paused".
  Sentence text() const;
};

// Asks the server, so it may block.
Result<JobStatus> jobStatus(const ServerOptions& server, const DestinationName& destination,
                            int jobId);

// The same question about one's own job, wherever it is by now, and of its state alone; nothing
// where the server does not tell, or has forgotten the job.
std::optional<JobState> jobState(const ServerOptions& server, int jobId);

// JobStatus::kilobytes alone, asked on a connection that is there; nothing where no answer comes.
std::optional<int> kilobytesAtServer(const ServerConnection& connection,
                                     const DestinationName& destination, int jobId);

// The job as people and the server's commands name it: PRINTER-NUMBER.
std::string jobName(const DestinationName& destination, int jobId);

}  // namespace cutline
