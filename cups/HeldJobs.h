// One's own jobs that wait on ask queues until somebody has said how they are to be cut. All calls
// may block on the server.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/OptionList.h"
#include "base/Result.h"
#include "cups/ServerOptions.h"

namespace cutline {

// Options of a job that the server keeps and no driver knows. The first one comes with the ask
// queue, as the default of its jobs: the printer that the job is meant for.
inline constexpr char kAskForOption[] = "cutline-ask-for";
// Of a job that waits: the job that is printed in its place, whose document is whole.
inline constexpr char kPrintedByOption[] = "cutline-printed-by";
// Of a job that is made in the place of another one: that one.
inline constexpr char kInPlaceOfOption[] = "cutline-in-place-of";

struct HeldJob {
  int id = 0;
  std::string queue;    // where it is
  std::string printer;  // where it is to be printed
  std::string title;
  // All that it says, in the server's words; for several values of one option with commas.
  OptionList options;
  bool isWhole = false;          // its document has arrived
  std::optional<int> printedBy;  // kPrintedByOption
};

// Those that wait, the oldest first. One that was moved and not released waits, too.
Result<std::vector<HeldJob>> heldJobs(const ServerOptions& server);
// One of them; an error where it waits no longer, or never did, or is another user's.
Result<HeldJob> heldJob(const ServerOptions& server, int jobId);

// One's own jobs, held or not, that were made in the place of that one.
Result<std::vector<int>> jobsInPlaceOf(const ServerOptions& server, int jobId);

}  // namespace cutline
