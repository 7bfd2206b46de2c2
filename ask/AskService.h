// Which of one's own jobs that wait is to be asked about next.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "base/Result.h"
#include "cups/HeldJobs.h"
#include "cups/JobEvents.h"

namespace cutline {

// What the service asks of the print server.
struct AskSources {
  std::function<JobEvents::News()> news;
  std::function<Result<std::vector<HeldJob>>()> waiting;
  // Whether the server has an ask queue at all.
  std::function<bool()> hasQueues;
};

// Each job is offered once, in the order of their numbers. One that was offered and still waits,
// because its window was killed, is offered again when another one comes, or when somebody asks for
// that, and never by itself: no window comes back over and over.
class AskService {
 public:
  explicit AskService(AskSources sources) : mSources(std::move(sources)) {}

  // Looks whether there is something to ask: the job's number, once. Blocks on the server.
  std::optional<int> next();
  // What was offered before counts as new.
  void offerAgain();
  // How long to leave the server alone until the next look.
  std::chrono::milliseconds pause() const noexcept;

 private:
  bool mustLook();
  void look();

  AskSources mSources;
  std::vector<int> mWaiting;  // as the last look found them
  std::set<int> mOffered;
  bool mIsSure = false;  // nothing has happened since the last look that was not looked at
  bool mHasQueues = false;
  int mQuiet = 0;  // looks in a row without news
};

}  // namespace cutline
