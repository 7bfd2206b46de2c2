// Memory, descriptors, disk or server run out at any moment: the program goes on without, or says
// what is wrong; it never just dies.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/e2e/Program.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

constexpr const char* kFailing[] = {"new",     "open", "write", "read", "socket",
                                    "connect", "send", "recv",  "pipe"};

bool failsEachCall() { return std::getenv("CUTLINE_LONG_TESTS") != nullptr; }

struct FailingRun {
  const char* name;
  const char* words;  // with # for a document and @ for a picture that is written
  int quick;          // calls of each function that fail in the quick form
  int most;           // and in the long one
};
void PrintTo(const FailingRun& run, std::ostream* out) { *out << run.name; }

class FailingCalls : public EndToEndTest, public testing::WithParamInterface<FailingRun> {
 protected:
  std::string words() const {
    std::string words = GetParam().words;
    if (const auto at = words.find('#'); at != words.npos) words.replace(at, 1, quoted(labels()));
    if (const auto at = words.find('@'); at != words.npos) words.replace(at, 1, mFolder / "a.png");
    return words + " >/dev/null";
  }
  CommandResult runFailing(const std::string& function, long at) {
    return runProgram(words(), "LD_PRELOAD=" CUTLINE_FAILING_CALLS " CUTLINE_FAIL=" + function +
                                   " CUTLINE_FAIL_AT=" + std::to_string(at) +
                                   " CUTLINE_FAIL_COUNT=" + mFolder / "count");
  }
  // The printer takes longer for a job than the program does, and the server takes so many only.
  static void dropJobs() { run("cancel -a"); }
  long callsOf(const std::string& function) {
    const CommandResult whole = runFailing(function, 0);
    dropJobs();
    EXPECT_EQ(whole.status, 0) << whole.errors;
    return std::atol(contentsOf(mFolder / "count").c_str());
  }
  void expectSaid(const std::string& function, long at) {
    const CommandResult result = runFailing(function, at);
    dropJobs();
    if (result.status == 0) return;
    EXPECT_EQ(result.status, 1) << function << " " << at;
    EXPECT_NE(result.errors.find("cutline: "), std::string::npos)
        << function << " " << at << ": " << result.errors;
  }

  const TemporaryFolder mFolder;
};

constexpr FailingRun kRuns[] = {{"Options", "--options -d tape24 -o LxHalfCut=ON", 3, 4000},
                                {"Plan", "--plan -d tape24 #", 2, 1000},
                                {"Print", "--print -d tape24 #", 2, 1000},
                                {"Snapshot", "--snapshot @ -d tape24 #", 1, 300}};
INSTANTIATE_TEST_SUITE_P(EachCommand, FailingCalls, testing::ValuesIn(kRuns),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(FailingCalls, AreSaidOrDoneWithout) {
  for (const char* function : kFailing) {
    const long calls = callsOf(function);
    EXPECT_TRUE(calls > 0 || function != std::string_view("new"));
    const int tried = failsEachCall() ? GetParam().most : GetParam().quick;
    const long step = std::max(1L, calls / tried);
    for (long at = 1 + (calls % step) / 2; at <= calls; at += step) expectSaid(function, at);
  }
}

}  // namespace

}  // namespace cutline::test
