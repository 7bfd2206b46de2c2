// Programs that save presets at the same time, each killed in the middle of it, over and over.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <random>
#include <utility>

#include "cups/SavedOptions.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr std::size_t kSavers = 3;
// The options of a preset, numbered so that their order is that of the names.
constexpr int kFirstNumber = 100;
constexpr int kLastNumber = 300;
constexpr char kOthers[] =
    "# by hand\nDest far/away x=a y=2\n  Nonsense x y=z\nDest elsewhere q=1\n";

int savedKills() { return std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 1000 : 50; }

std::string instanceOf(std::size_t saver) { return "saver" + std::to_string(saver); }

// A preset whose options all say which time it is that it is saved.
OptionList presetOfTime(int time) {
  OptionList options;
  for (int number = kFirstNumber; number <= kLastNumber; ++number)
    options.emplace_back("option" + std::to_string(number), std::to_string(time));
  return options;
}

struct SaverTimes {
  std::array<std::atomic<int>, kSavers> begun;
  std::array<std::atomic<int>, kSavers> saved;
};

class KilledSaver : public testing::Test {
 protected:
  KilledSaver() {
    ::setenv("HOME", mHome.path().c_str(), 1);
    mHome.write(".cups/lpoptions", kOthers);
  }
  ~KilledSaver() override {
    for (const pid_t process : mProcesses)
      if (process > 0) end(process);
    mOldHome ? ::setenv("HOME", mOldHome->c_str(), 1) : ::unsetenv("HOME");
    ::munmap(mTimes, sizeof *mTimes);
  }

  void start(std::size_t saver) {
    mProcesses[saver] = ::fork();
    if (mProcesses[saver] != 0) return;
    for (;;) {
      const int time = ++mTimes->begun[saver];
      if (!saveEntry({"tape", instanceOf(saver)}, presetOfTime(time))) ::_exit(1);
      mTimes->saved[saver] = time;
    }
  }

  // Whether it was alive until now.
  static bool end(pid_t process) {
    int status = 0;
    ::kill(process, SIGKILL);
    return ::waitpid(process, &status, 0) == process && WIFSIGNALED(status);
  }

  std::string saved() const { return test::contentsOf(mHome / ".cups/lpoptions"); }

  // Nobody's lines but whole ones, each preset as it was saved last or as it was about to be.
  void expectWhole() const {
    const int least[] = {mTimes->saved[0], mTimes->saved[1], mTimes->saved[2]};
    ASSERT_TRUE(saved().starts_with(kOthers)) << saved().substr(0, 300);
    for (std::size_t saver = 0; saver < kSavers; ++saver) {
      const auto options = savedOptionsFor({"tape", instanceOf(saver)});
      if (least[saver] == 0 && !options) continue;
      ASSERT_TRUE(options && !options->empty()) << saver;
      const int time = std::atoi(options->front().second.c_str());
      EXPECT_EQ(*options, presetOfTime(time));
      EXPECT_GE(time, least[saver]);
      EXPECT_LE(time, mTimes->begun[saver]);
    }
  }

  test::TemporaryFolder mHome;
  std::optional<std::string> mOldHome =
      ::getenv("HOME") ? std::optional<std::string>(::getenv("HOME")) : std::nullopt;
  std::array<pid_t, kSavers> mProcesses{};
  SaverTimes* mTimes = static_cast<SaverTimes*>(::mmap(
      nullptr, sizeof(SaverTimes), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
};

TEST_F(KilledSaver, LosesNothingAndLeavesNothing) {
  std::minstd_rand random(7);
  for (std::size_t saver = 0; saver < kSavers; ++saver) start(saver);
  for (int kill = 0; kill < savedKills() && !HasFatalFailure(); ++kill) {
    ::usleep(random() % 20'000);
    const std::size_t saver = random() % kSavers;
    ASSERT_TRUE(end(mProcesses[saver]));
    expectWhole();
    start(saver);
  }
  for (pid_t& process : mProcesses) ASSERT_TRUE(end(std::exchange(process, 0)));
  expectWhole();
  EXPECT_GT(mTimes->saved[0] + mTimes->saved[1] + mTimes->saved[2], 0);
  ASSERT_TRUE(saveEntry({"tape", "after"}, {}));
  EXPECT_EQ(mHome.names(".cups"), (std::vector<std::string>{"lpoptions", "lpoptions.lock"}));
}

}  // namespace
}  // namespace cutline
