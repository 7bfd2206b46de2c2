// Ask queues: a queue beside a printer's own one, on which every program can print and every job
// waits until its owner was asked how it is to be cut.
#pragma once

#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/ServerOptions.h"

namespace cutline {

struct AskQueue {
  std::string name;
  std::string printer;  // that it stands for
  int jobs = 0;         // that wait there, of all users
};

// All calls may block on the server, and the first two ask who one is where it takes administrators
// alone.

// Makes the ask queue of a printer, with the printer's PPD, users and options; an ask queue that is
// there already is made anew, its jobs stay.
Result<AskQueue> addAskQueue(const ServerOptions& server, const std::string& printer);
// Takes the ask queue of a printer away; the printer may be named, or the queue itself. Refused
// while a job waits there.
Result<AskQueue> removeAskQueue(const ServerOptions& server, const std::string& name);
// No by the name alone; without asking the server.
bool mayBeAskQueue(const std::string& name) noexcept;
// Every ask queue of the server, by their names.
Result<std::vector<AskQueue>> askQueues(const ServerOptions& server);

}  // namespace cutline
