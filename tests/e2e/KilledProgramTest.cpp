// A program that is killed while it prints leaves one whole job or none, and nothing else.
#include <cups/cups.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/EndToEndTest.h"
#include "tests/support/SocketServer.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

int points() { return std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 100 : 6; }

enum class WayToPrint { byCommand, byDialog };

// Print is pressed as soon as the labels are there.
std::vector<std::string> wordsFor(WayToPrint printing) {
  const std::string program = built("bin/cutline");
  if (printing == WayToPrint::byCommand) return {program, "--print", "-q"};
  return {"QT_QPA_PLATFORM=offscreen", "QT_QPA_GENERIC_PLUGINS=presser",
          "QT_PLUGIN_PATH=" + built("tests/programs"), program};
}

// The program at printing, with the temporary folder that it is given.
class PrintingProgram {
 public:
  PrintingProgram(const std::string& server, const std::string& temporary, const std::string& title,
                  const std::string& document, WayToPrint printing = WayToPrint::byCommand) {
    std::vector<std::string> words = {"env", "CUPS_SERVER=" + server, "TMPDIR=" + temporary,
                                      "XDG_STATE_HOME=" + temporary, "LANGUAGE=en"};
    std::ranges::copy(wordsFor(printing), std::back_inserter(words));
    for (const std::string& word :
         {std::string("-d"), std::string("tape24"), std::string("-t"), title, document})
      words.push_back(word);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    if (::posix_spawnp(&process, "env", nullptr, nullptr, arguments.data(), environ) == 0)
      mProcess = process;
  }
  ~PrintingProgram() { wait(); }
  PrintingProgram(const PrintingProgram&) = delete;
  PrintingProgram& operator=(const PrintingProgram&) = delete;

  void kill() const {
    if (const pid_t process = mProcess; process > 0) ::kill(process, SIGKILL);
  }
  // Its number may be another's once it was waited for.
  void wait() {
    if (mProcess == 0) return;
    siginfo_t end;
    ::waitid(P_PID, static_cast<id_t>(mProcess.load()), &end, WEXITED | WNOWAIT);
    ::waitpid(mProcess.exchange(0), nullptr, 0);
  }

 private:
  std::atomic<pid_t> mProcess = 0;
};

class KilledProgram : public EndToEndTest {
 protected:
  KilledProgram() { outputOf("cupsdisable tape24"); }
  ~KilledProgram() override { outputOf("cancel -a; cupsenable tape24"); }

  struct Jobs {
    int whole = 0;
    int halfOpen = 0;
  };
  static Jobs jobsOf(const std::string& title) {
    Jobs jobs;
    cups_job_t* all = nullptr;
    // Not by the connection that other tests have left, perhaps to a server that is gone.
    http_t* http = httpConnect2(server().options().server->c_str(), ippPort(), nullptr, AF_UNSPEC,
                                HTTP_ENCRYPTION_IF_REQUESTED, 1, 10000, nullptr);
    const int count = cupsGetJobs2(http, &all, nullptr, 0, CUPS_WHICHJOBS_ALL);
    httpClose(http);
    EXPECT_GE(count, 0) << cupsLastErrorString();
    for (int i = 0; i < count; ++i)
      if (all[i].title == title)
        ++(all[i].state == IPP_JSTATE_PENDING ? jobs.whole : jobs.halfOpen);
    cupsFreeJobs(count, all);
    return jobs;
  }
  static std::vector<std::string> filesAtHome() {
    std::vector<std::string> files;
    for (const auto& each : std::filesystem::recursive_directory_iterator(server().home()))
      files.push_back(each.path());
    std::ranges::sort(files);
    return files;
  }
  static bool comesTrue(const std::function<bool()>& condition) {
    const auto end = steady_clock::now() + 10s;
    while (!condition() && steady_clock::now() < end) std::this_thread::sleep_for(5ms);
    return condition();
  }
  // How many jobs there are of what was killed.
  int expectOneWholeOrNone(const std::string& title) {
    EXPECT_TRUE(comesTrue([&] { return jobsOf(title).halfOpen == 0; })) << title;
    EXPECT_TRUE(comesTrue([&] { return mTemporary.isEmpty(); })) << title;
    EXPECT_EQ(filesAtHome(), mHomeBefore) << title;
    const int whole = jobsOf(title).whole;
    EXPECT_LE(whole, 1) << title;
    return whole;
  }

  TemporaryFolder mTemporary;
  const std::vector<std::string> mHomeBefore = filesAtHome();
};

// Killed when so many bytes have gone over the way to the server, in either direction; 0 for never.
class DeadlyWay {
 public:
  explicit DeadlyWay(std::size_t most = 0) : mMost(most) {}

  void setVictim(const PrintingProgram& victim) { mVictim = &victim; }
  std::string path() const { return mServer.path(); }
  std::size_t passed() const { return mPassed; }

 private:
  std::size_t mayPass(std::size_t count) {
    const std::size_t before = mPassed.fetch_add(count);
    if (mMost == 0 || before + count < mMost) return count;
    while (!mVictim) std::this_thread::sleep_for(1ms);
    mVictim.load()->kill();
    return before < mMost ? mMost - before : 0;
  }

  std::size_t mMost;
  std::atomic<std::size_t> mPassed = 0;
  std::atomic<const PrintingProgram*> mVictim = nullptr;
  SocketServer mServer{[this](int client) {
    const MayPass limit = [this](std::size_t count) { return mayPass(count); };
    relay(client, *server().options().server, limit, limit);
  }};
};

TEST_F(KilledProgram, LeavesOneWholeJobOrNoneWhereverOnTheWayItEnds) {
  std::size_t all = 0;
  {
    DeadlyWay free;
    PrintingProgram(free.path(), mTemporary.path(), "free", labels()).wait();
    ASSERT_EQ(jobsOf("free").whole, 1);
    all = free.passed();
  }
  int jobs = 0;
  const int count = points();
  for (int i = 1; i <= count; ++i) {
    const std::size_t most = all * static_cast<std::size_t>(i) / static_cast<std::size_t>(count);
    const std::string title = "killed after " + std::to_string(most) + " bytes";
    DeadlyWay way(most);
    PrintingProgram printing(way.path(), mTemporary.path(), title, labels());
    way.setVictim(printing);
    printing.wait();
    jobs += expectOneWholeOrNone(title);
  }
  EXPECT_GT(jobs, 0);
  EXPECT_LT(jobs, count);
}

TEST_F(KilledProgram, LeavesOneWholeJobOrNoneWheneverItEnds) {
  TemporaryFolder folder;
  const std::string program = folder.write(
      "labels.ps", "%!PS\n1 1 40 { pop 5 5 moveto 40 40 lineto stroke showpage } for\n");
  const std::string server = *test::server().options().server;
  const auto start = steady_clock::now();
  PrintingProgram(server, mTemporary.path(), "free", program).wait();
  const auto whole = steady_clock::now() - start;
  ASSERT_EQ(jobsOf("free").whole, 1);
  const int count = points();
  for (int i = 0; i < count; ++i) {
    const std::string title = "killed at " + std::to_string(i);
    PrintingProgram printing(server, mTemporary.path(), title, program);
    std::this_thread::sleep_for(whole * i / count);
    printing.kill();
    printing.wait();
    expectOneWholeOrNone(title);
  }
}

// The dialog stays with its job, and asks the server for ever: so it is killed in any case. What it
// asks before Print is pressed is the first half of it.
TEST_F(KilledProgram, LeavesOneWholeJobOrNoneWhereverTheDialogEnds) {
  std::size_t all = 0;
  {
    DeadlyWay free;
    const PrintingProgram printing(free.path(), mTemporary.path(), "free", labels(),
                                   WayToPrint::byDialog);
    EXPECT_TRUE(comesTrue([&] { return jobsOf("free").whole == 1; }));
    all = free.passed();
    printing.kill();
  }
  int jobs = 0;
  const std::size_t count = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 100 : 4;
  for (std::size_t i = 1; i <= count; ++i) {
    const std::size_t most = all * (count + i) / (2 * count);
    const std::string title = "dialog killed after " + std::to_string(most) + " bytes";
    DeadlyWay way(most);
    PrintingProgram printing(way.path(), mTemporary.path(), title, labels(), WayToPrint::byDialog);
    way.setVictim(printing);
    printing.wait();
    jobs += expectOneWholeOrNone(title);
  }
  EXPECT_GT(jobs, 0);
  EXPECT_LT(jobs, static_cast<int>(count));
}

}  // namespace

}  // namespace cutline::test
