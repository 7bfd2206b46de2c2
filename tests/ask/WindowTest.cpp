// The window that the service opens, and the service itself where it cannot be.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>

#include "ask/Window.h"
#include "base/UserLock.h"
#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

class AskWindow : public testing::Test {
 protected:
  // The words of a script that is opened as the window of job 7.
  std::string saidBy(const std::string& script) const {
    const std::string path =
        mFolder.write("cutline", "#!/bin/bash\nexec >" + mFolder / "said" + '\n' + script + '\n');
    ::chmod(path.c_str(), 0755);
    const Result<pid_t> window = openWindow(path, 7);
    EXPECT_TRUE(window) << window.error().message;
    if (window) ::waitpid(*window, nullptr, 0);
    return test::contentsOf(mFolder / "said");
  }

  test::TemporaryFolder mFolder;
};

TEST_F(AskWindow, IsTheProgramWithTheJobsNumber) {
  EXPECT_EQ(saidBy("echo \"$@\""), "--held-job 7\n");
}

TEST_F(AskWindow, TakesItsSignalsThoughTheServiceHoldsThem) {
  sigset_t held;
  sigset_t before;
  sigemptyset(&held);
  sigaddset(&held, SIGTERM);
  ::pthread_sigmask(SIG_BLOCK, &held, &before);
  EXPECT_EQ(saidBy("grep SigBlk /proc/self/status"), "SigBlk:\t0000000000000000\n");
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(AskWindow, IsNamedWhereItCannotBeStarted) {
  const Result<pid_t> window = openWindow("/nonexistent/cutline", 7);
  ASSERT_FALSE(window);
  EXPECT_EQ(window.error().message,
            "/nonexistent/cutline: cannot be started: No such file or directory");
}

class AskProgram : public testing::Test {
 protected:
  test::CommandResult runIn(const std::string& runtimeFolder) const {
    return test::run("XDG_RUNTIME_DIR=" + runtimeFolder +
                     " timeout 20 " CUTLINE_BUILD_DIR "/lib/cutline/cutline-ask");
  }
  test::TemporaryFolder mFolder;
};

TEST_F(AskProgram, HasNothingToDoWhereItRunsAlready) {
  const std::string before = std::getenv("XDG_RUNTIME_DIR");
  ::setenv("XDG_RUNTIME_DIR", mFolder.path().c_str(), 1);
  const Result<FileDescriptor> lock = takeUserLock("ask");
  ::setenv("XDG_RUNTIME_DIR", before.c_str(), 1);
  ASSERT_TRUE(lock && *lock);
  const test::CommandResult result = runIn(mFolder.path());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "cutline-ask: it runs already\n");
}

TEST_F(AskProgram, NamesTheLockThatItCannotHave) {
  const std::string file = mFolder.write("file", "");
  const test::CommandResult result = runIn(file);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "cutline-ask: " + file + "/cutline/ask.lock: Not a directory\n");
}

}  // namespace
}  // namespace cutline
