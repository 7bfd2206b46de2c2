// A job that waits is printed exactly once, whichever step the program ends at, and however often.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "host/core/HeldJobPrinting.h"

namespace cutline {
namespace {

constexpr int kWaiting = 7;
constexpr char kPrinter[] = "tape24";
constexpr char kQueue[] = "tape24_ask";

// The program is killed.
struct Killed {};

struct ServersJob {
  std::string queue;
  OptionList options;
  bool isHeld = true;
  bool isCancelled = false;
};

// A print server that does what it is asked, until the program that asks is killed.
class ModelServer final : public HeldJobServer {
 public:
  // After so many further steps the program is killed, with the last of them done.
  void killAfter(int steps) { mLeft = steps; }
  void killNever() { mLeft = -1; }
  // Of the next step so far away, done all the same, the answer gets lost.
  void loseAnswer(int step) { mLost = step; }
  void refuseMarks() { mRefusesMarks = true; }

  std::map<int, ServersJob> jobs{{kWaiting, {kQueue, {}}}};

  int printed() const {
    return static_cast<int>(std::ranges::count_if(jobs, [](const auto& entry) {
      return !entry.second.isHeld && !entry.second.isCancelled && entry.second.queue == kPrinter;
    }));
  }
  bool isWaiting(int id) const {
    const ServersJob& job = jobs.at(id);
    return job.isHeld && !job.isCancelled;
  }
  HeldJob waiting() const {
    HeldJob job;
    job.id = kWaiting;
    job.queue = jobs.at(kWaiting).queue;
    job.printer = kPrinter;
    for (const auto& [name, value] : jobs.at(kWaiting).options)
      if (name == kPrintedByOption) job.printedBy = std::stoi(value);
    return job;
  }

  Result<Done> setOptions(int job, const OptionList& options) override {
    return step([&] { add(job, options); });
  }
  Result<Done> mark(int job, const std::string& name, const std::string& value) override {
    if (mRefusesMarks) return Error{Sentence("no marks here")};
    return step([&] { add(job, {{name, value}}); });
  }
  Result<Done> move(int job, const std::string& printer) override {
    return step([&] { jobs.at(job).queue = printer; });
  }
  Result<Done> release(int job) override {
    return step([&] { jobs.at(job).isHeld = false; });
  }
  // What is out cannot be cancelled any more.
  Result<Done> cancel(int job) override {
    return step([&] { jobs.at(job).isCancelled = jobs.at(job).isHeld; });
  }
  Result<int> submit(const PrintRequest& request, const SpoolProgress& /*progress*/) override {
    const int id = jobs.rbegin()->first + 1;
    const bool isHeld = std::ranges::find(request.options, std::string("job-hold-until"),
                                          &OptionList::value_type::first) != request.options.end();
    const Result<Done> done = step([&] {
      jobs[id] = {request.destination.printer, request.options, isHeld, false};
    });
    return done ? Result<int>(id) : Result<int>(done.error());
  }
  std::optional<JobState> state(int job) override {
    const auto found = jobs.find(job);
    if (found == jobs.end()) return std::nullopt;
    if (found->second.isCancelled) return JobState::canceled;
    return found->second.isHeld ? JobState::held : JobState::completed;
  }
  Result<std::vector<int>> inPlaceOf(int job) override {
    std::vector<int> found;
    for (const auto& [id, each] : jobs)
      for (const auto& [name, value] : each.options)
        if (name == kInPlaceOfOption && value == std::to_string(job) && isWaiting(id))
          found.push_back(id);
    return found;
  }

 private:
  template <class Action>
  Result<Done> step(const Action& action) {
    if (mLeft == 0) throw Killed();
    if (mLeft > 0) --mLeft;
    action();
    if (mLost-- == 0) return Error{Sentence("the connection was lost")};
    return Done{};
  }
  void add(int job, const OptionList& options) {
    OptionList& all = jobs.at(job).options;
    for (const auto& option : options) {
      std::erase_if(all, [&](const auto& old) { return old.first == option.first; });
      all.push_back(option);
    }
  }

  int mLeft = -1;
  int mLost = -1;
  bool mRefusesMarks = false;
};

PrintRequest request() { return {{kPrinter, std::nullopt}, "composed.pdf", "A title", {}}; }

// What a person does who is asked, again and again if need be: presses Print.
using Printing = Result<int> (*)(ModelServer&);
Result<int> printItself(ModelServer& server) {
  const Result<Done> done = printHeldJob(server, server.waiting(), {{"LxHalfCut", "ON"}});
  return done ? Result<int>(kWaiting) : Result<int>(done.error());
}
Result<int> printAnother(ModelServer& server) {
  return printInPlace(server, server.waiting(), request(), {});
}

// As the program does when it is started about a job: nothing where that waits no longer.
void askAbout(ModelServer& server, Printing print) {
  if (!server.isWaiting(kWaiting)) return;
  const Result<bool> settled = settleHeldJob(server, server.waiting());
  ASSERT_TRUE(settled);
  if (*settled) return;
  ASSERT_TRUE(print(server));
}

class HeldJobPrinting : public testing::TestWithParam<Printing> {};
INSTANTIATE_TEST_SUITE_P(EachWay, HeldJobPrinting, testing::Values(printItself, printAnother),
                         [](const auto& info) {
                           return info.param == printItself ? "TheJobItself" : "AnotherInItsPlace";
                         });

TEST_P(HeldJobPrinting, PrintsOnce) {
  ModelServer server;
  ASSERT_TRUE(GetParam()(server));
  EXPECT_EQ(server.printed(), 1);
  EXPECT_FALSE(server.isWaiting(kWaiting));
}

TEST_P(HeldJobPrinting, PrintsOnceWhereverTheProgramIsKilled) {
  int kills = 0;
  for (int steps = 0; steps < 20; ++steps) {
    ModelServer server;
    server.killAfter(steps);
    try {
      askAbout(server, GetParam());
    } catch (const Killed&) {
      ++kills;
    }
    EXPECT_LE(server.printed(), 1);
    server.killNever();
    askAbout(server, GetParam());
    askAbout(server, GetParam());
    EXPECT_EQ(server.printed(), 1) << "killed after " << steps;
    for (const auto& [id, job] : server.jobs)
      EXPECT_FALSE(server.isWaiting(id)) << id << " was left, killed after " << steps;
  }
  EXPECT_GE(kills, 3) << "the test has to have killed it at each step";
}

TEST_P(HeldJobPrinting, PrintsOnceWhereItIsKilledAgainWhileItSettles) {
  for (int first = 0; first < 6; ++first) {
    for (int second = 0; second < 6; ++second) {
      ModelServer server;
      for (const int steps : {first, second}) {
        server.killAfter(steps);
        try {
          askAbout(server, GetParam());
        } catch (const Killed&) {
        }
      }
      server.killNever();
      askAbout(server, GetParam());
      askAbout(server, GetParam());
      EXPECT_EQ(server.printed(), 1) << first << ", then " << second;
    }
  }
}

// But for that of the document itself, which is taken back then by whoever sends it.
TEST_P(HeldJobPrinting, PrintsOnceWhereAnAnswerGetsLost) {
  const int first = GetParam() == printAnother ? 1 : 0;
  for (int step = first; step < 4; ++step) {
    ModelServer server;
    server.loseAnswer(step);
    EXPECT_TRUE(GetParam()(server)) << step;
    EXPECT_EQ(server.printed(), 1) << step;
  }
}

TEST(HeldJobInPlace, IsTakenBackWhereTheWaitingOneCannotBeMarked) {
  ModelServer server;
  server.refuseMarks();
  EXPECT_FALSE(printAnother(server));
  EXPECT_EQ(server.printed(), 0);
  EXPECT_TRUE(server.isWaiting(kWaiting));
  EXPECT_EQ(server.jobs.size(), 2U);
  EXPECT_TRUE(server.jobs.rbegin()->second.isCancelled);
}

// Somebody cancelled the new one: the old one is asked about again, and nothing is lost.
TEST(HeldJobInPlace, IsAskedAboutAgainWhereTheNewOneWasCancelled) {
  ModelServer server;
  server.jobs[8] = {kPrinter, {{kInPlaceOfOption, "7"}}, true, true};
  server.jobs.at(kWaiting).options = {{kPrintedByOption, "8"}};
  const Result<bool> settled = settleHeldJob(server, server.waiting());
  ASSERT_TRUE(settled);
  EXPECT_FALSE(*settled);
  EXPECT_TRUE(server.isWaiting(kWaiting));
}

}  // namespace
}  // namespace cutline
