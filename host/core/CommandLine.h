// The command line, read.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/HeldJobs.h"
#include "cups/ServerOptions.h"
#include "host/core/PrintValues.h"

namespace cutline {

enum class Command {
  dialog,
  print,
  dryRun,
  summary,
  options,
  plan,
  choices,
  snapshot,
  list,
  askQueue,
  help,
  version
};

// Exit statuses of the program.
inline constexpr int kExitDone = 0;
inline constexpr int kExitError = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitCancelled = 3;

struct CommandLine {
  Command command = Command::dialog;
  std::optional<DestinationName> destination;  // -d
  std::optional<std::string> title;            // -t
  AskedSettings asked;                         // -o (media replaced by PageSize), -n, -P; checked
  ServerOptions server;                        // -h -E -U
  std::vector<std::string> files;              // the documents in order; - is standard input
  std::optional<std::string> ppdPath;          // --ppd
  std::optional<std::string> pluginDirectory;  // --plugin-dir
  std::string snapshotPath;                    // --snapshot
  std::string dryRunPath;                      // --dry-run
  std::string askQueueVerb;                    // --ask-queue: add, remove or list
  std::optional<int> heldJobId;                // --held-job
  std::shared_ptr<const HeldJob> heldJob;      // that job, once it is in hand (HeldJobInHand.h)
  int scale = 1;                               // --scale: pixels per point, 1 or 2
  bool dark = false;                           // --dark
  bool asJson = false;                         // --json: the plan for other programs
  bool isQuiet = false;                        // -q: no notes, only errors
  bool waits = false;                          // --wait: until the job has ended
  bool isEach = false;                         // --each: every document is a job of its own
  bool marks = false;                          // --marks: times on standard output, then end
  // For programs that open the dialog on somebody's behalf; not in the help text.
  bool isOnce = false;      // --once: the dialog closes when its job is out
  bool isChoosing = false;  // --choose: prints nothing; what was chosen goes to standard output
  std::optional<std::string> parentWindow;  // --parent: the window that the dialog belongs to,
                                            // as portals name it: "x11:" and its number in hex
  std::optional<std::string> windowTitle;   // --window-title: in the place of the job's title
};

// The error is about usage: one line without "cutline: ".
Result<CommandLine> parseCommandLine(int argc, const char* const* argv);

// The text of --help.
std::string helpText();

}  // namespace cutline
