#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <new>
#include <thread>
#include <vector>

#include "composition/helper/Confinement.h"
#include "tests/composition/RefusedCall.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr int kNotConfined = 99;
constexpr ProcessLimits kPlenty = {};

// What waitpid says of a process that enters the confinement and then does `act`, whose result is
// its exit status.
int endOf(const std::function<int()>& act, const ProcessLimits& limits = kPlenty) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(confine(limits) ? act() : kNotConfined);
  int status = -1;
  ::waitpid(child, &status, 0);
  return status;
}

// The exit status alone; -1 for any other end.
int resultOf(const std::function<int()>& act, const ProcessLimits& limits = kPlenty) {
  const int status = endOf(act, limits);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// errno after a call that failed; 0 after one that did not.
int problemOf(long result) { return result < 0 ? errno : 0; }

struct Refusal {
  const char* what;
  std::function<int()> act;
};

class Confinement : public testing::Test {
 protected:
  static void expectRefused(const std::vector<Refusal>& refusals) {
    for (const Refusal& refusal : refusals)
      EXPECT_EQ(resultOf(refusal.act), EACCES) << refusal.what;
  }
  test::TemporaryFolder mFolder;
};

TEST_F(Confinement, RefusesSockets) {
  expectRefused({
      {"IPv4", [] { return problemOf(::socket(AF_INET, SOCK_STREAM, 0)); }},
      {"IPv6", [] { return problemOf(::socket(AF_INET6, SOCK_DGRAM, 0)); }},
      {"local", [] { return problemOf(::socket(AF_UNIX, SOCK_STREAM, 0)); }},
  });
}

TEST_F(Confinement, RefusesOtherPrograms) {
  expectRefused({
      {"exec", [] { return problemOf(::execl("/bin/true", "true", nullptr)); }},
#ifndef __SANITIZE_THREAD__
      // The sanitizer makes another call of it.
      {"vfork", [] { return problemOf(::vfork()); }},
#endif
  });
  EXPECT_EQ(resultOf([] { return ::fork() < 0 ? 0 : 1; }), 0);
  EXPECT_EQ(resultOf([] {
              char* const arguments[] = {nullptr};
              pid_t process = 0;
              return ::posix_spawn(&process, "/bin/true", nullptr, nullptr, arguments, nullptr) ? 0
                                                                                                : 1;
            }),
            0);
}

TEST_F(Confinement, RefusesToTouchOtherProcesses) {
  const pid_t parent = ::getpid();
  expectRefused({
      {"kill", [=] { return problemOf(::kill(parent, 0)); }},
      {"ptrace", [=] { return problemOf(::ptrace(PTRACE_ATTACH, parent, nullptr, nullptr)); }},
  });
}

// As abort() does. The filter was made when this was built, for a process of any number.
TEST_F(Confinement, SignalsItselfAlone) {
  const auto signal = [](pid_t process) {
    return problemOf(::syscall(SYS_tgkill, process, process, 0));
  };
  const pid_t parent = ::getpid();
  EXPECT_EQ(resultOf([&] { return signal(::getpid()); }), 0);
  EXPECT_EQ(resultOf([&] { return signal(parent); }), ENOSYS);
  EXPECT_EQ(resultOf([&] { return signal(1); }), ENOSYS);
}

TEST_F(Confinement, RefusesToChangeFiles) {
  const std::string file = mFolder.write("file", "whole");
  const std::string other = mFolder / "other";
  expectRefused({
      {"write", [&] { return problemOf(::open(file.c_str(), O_WRONLY)); }},
      {"read and write", [&] { return problemOf(::open(file.c_str(), O_RDWR)); }},
      {"truncate", [&] { return problemOf(::open(file.c_str(), O_RDONLY | O_TRUNC)); }},
      {"make", [&] { return problemOf(::open(other.c_str(), O_CREAT | O_RDONLY, 0600)); }},
      {"nameless",
       [&] { return problemOf(::open(mFolder.path().c_str(), O_TMPFILE | O_RDWR, 0600)); }},
      {"truncate by name", [&] { return problemOf(::truncate(file.c_str(), 0)); }},
      {"remove", [&] { return problemOf(::unlink(file.c_str())); }},
      {"rename", [&] { return problemOf(::rename(file.c_str(), other.c_str())); }},
      {"folder", [&] { return problemOf(::mkdir(other.c_str(), 0700)); }},
      {"link", [&] { return problemOf(::symlink("/", other.c_str())); }},
      {"rights", [&] { return problemOf(::chmod(file.c_str(), 0777)); }},
  });
  EXPECT_EQ(mFolder.names(), std::vector<std::string>{"file"});
  EXPECT_EQ(test::contentsOf(file), "whole");
}

TEST_F(Confinement, ReadsFilesAndWritesToOpenOnes) {
  const std::string file = mFolder.write("file", "whole");
  const int open = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
  EXPECT_EQ(resultOf([&] {
              const int read = ::open("/etc/passwd", O_RDONLY);
              char letter = 0;
              const bool isRead = read >= 0 && ::read(read, &letter, 1) == 1;
              return isRead && ::write(open, "W", 1) == 1 ? 0 : 1;
            }),
            0);
  ::close(open);
  EXPECT_EQ(test::contentsOf(file), "Whole");
}

TEST_F(Confinement, HoldsForThreadsThatCameLater) {
  EXPECT_EQ(resultOf([] {
              int problem = 0;
              std::thread([&] { problem = problemOf(::socket(AF_INET, SOCK_STREAM, 0)); }).join();
              return problem;
            }),
            EACCES);
}

TEST_F(Confinement, CannotBeLeft) {
  EXPECT_EQ(resultOf([] {
              rlimit more{RLIM_INFINITY, RLIM_INFINITY};
              return problemOf(::setrlimit(RLIMIT_FSIZE, &more));
            }),
            EACCES);
  EXPECT_NE(resultOf([] { return ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0) == 0 ? 0 : 1; }), 0);
}

TEST_F(Confinement, AbortsAsAnyProgram) {
  const int status = endOf([]() -> int { std::abort(); });
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGABRT);
  EXPECT_FALSE(WCOREDUMP(status));
}

TEST_F(Confinement, EndsWhatComputesForTooLong) {
  const int status = endOf(
      [] {
        for (volatile int turn = 0;;) turn = turn + 1;
        return 0;
      },
      {.cpuSeconds = 1});
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGXCPU);
}

TEST_F(Confinement, EndsWhatWaitsForTooLong) {
  const int status = endOf([] { return ::pause(); }, {.wallSeconds = 1});
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGALRM);
}

TEST_F(Confinement, EndsWhatWritesTooMuch) {
  const int open = ::open(mFolder.write("file", "").c_str(), O_WRONLY | O_CLOEXEC);
  const int status = endOf(
      [=] {
        const std::vector<char> block(4096);
        while (::write(open, block.data(), block.size()) > 0) continue;
        return 0;
      },
      {.fileSize = 65536});
  ::close(open);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
  EXPECT_EQ(test::contentsOf(mFolder / "file").size(), 65536U);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// The sanitizer's own memory leaves no room for a limit.
TEST_F(Confinement, HasNoMoreMemoryThanItsLimit) {
  const ProcessLimits limits = {.memory = 256U << 20U};
  const auto takes = [](std::size_t bytes) {
    return [bytes] {
      try {
        const std::vector<char> taken(bytes);
        return 0;
      } catch (const std::bad_alloc&) {
        return 1;
      }
    };
  };
  EXPECT_EQ(resultOf(takes(32U << 20U), limits), 0);
  EXPECT_EQ(resultOf(takes(256U << 20U), limits), 1);
}
#endif

int endOfInterpreter(const std::string& folder, const std::function<int()>& act) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(confineInterpreter({}, folder.c_str()) ? act() : kNotConfined);
  int status = -1;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int shell(const char* command) { return ::execl("/bin/bash", "bash", "-c", command, nullptr); }

TEST_F(Confinement, AnInterpreterHasNoSockets) {
  EXPECT_EQ(
      endOfInterpreter(mFolder.path(), [] { return problemOf(::socket(AF_INET, SOCK_STREAM, 0)); }),
      EACCES);
  EXPECT_EQ(endOfInterpreter(mFolder.path(), [] { return shell("exit 7"); }), 7);
  EXPECT_EQ(
      endOfInterpreter(mFolder.path(),
                       [] { return shell("exec 9<>/dev/udp/127.0.0.1/9 && exit 7; exit 8"); }),
      8);
}

TEST_F(Confinement, AnInterpreterWritesInItsFolderAlone) {
  const test::TemporaryFolder own;
  const std::string inside = own / "file";
  const std::string outside = mFolder / "file";
  const auto make = [](const std::string& path) {
    return [path] { return problemOf(::open(path.c_str(), O_CREAT | O_WRONLY, 0600)); };
  };
  EXPECT_EQ(endOfInterpreter(own.path(), make(inside)), 0);
  EXPECT_EQ(endOfInterpreter(own.path(), make(outside)), EACCES);
  EXPECT_TRUE(mFolder.isEmpty());
}

// With a limit of each kind, so that each step is taken.
constexpr ProcessLimits kEachLimit = {
    .memory = 1U << 30U, .fileSize = 1U << 20U, .cpuSeconds = 30, .files = 64, .wallSeconds = 60};

std::string wordsOf(bool isConfined) { return isConfined ? "confined" : "refused"; }

// What is not confined in every respect must not look at what anybody may have made.
TEST_F(Confinement, IsNoneWhereTheSystemRefusesAStep) {
  const auto limit = [](auto resource) { return test::Argument{1, resource}; };
  const test::RefusedCall steps[] = {
      {"prctl", test::Argument{0, PR_SET_NO_NEW_PRIVS}},
      {"prctl", test::Argument{0, PR_SET_DUMPABLE}},
      {"prctl", test::Argument{0, PR_SET_PDEATHSIG}},
      {"prlimit64", limit(RLIMIT_CPU)},
      {"prlimit64", limit(RLIMIT_CORE)},
      {"prlimit64", limit(RLIMIT_FSIZE)},
      {"prlimit64", limit(RLIMIT_NOFILE)},
      {"openat"},
      {"landlock_create_ruleset"},
      {"landlock_add_rule"},
      {"landlock_restrict_self"},
      {"seccomp"},
  };
  for (std::size_t at = 0; at < std::size(steps); ++at) {
    const auto confined = [] { return wordsOf(confine(kEachLimit)); };
    const auto interpreter = [&] {
      return wordsOf(confineInterpreter(kEachLimit, mFolder.path().c_str()));
    };
    EXPECT_EQ(test::saidWithout(steps[at], confined), "refused") << at << steps[at].name;
    EXPECT_EQ(test::saidWithout(steps[at], interpreter), "refused") << at << steps[at].name;
  }
  EXPECT_EQ(test::saidWithout(
                {"prlimit64", limit(RLIMIT_AS)},
                [&] { return wordsOf(confineInterpreter(kEachLimit, mFolder.path().c_str())); }),
            "refused");
}

TEST_F(Confinement, IsTheFilterAloneWhereTheSystemHasNoLandlock) {
  for (const int reason : {ENOSYS, EOPNOTSUPP}) {
    const std::string said =
        test::saidWithout({"landlock_create_ruleset", {}, reason}, []() -> std::string {
          if (!confine(kPlenty)) return "refused";
          return ::open("/etc/passwd", O_RDWR) < 0 && ::socket(AF_INET, SOCK_STREAM, 0) < 0
                     ? "confined"
                     : "open";
        });
    EXPECT_EQ(said, "confined") << reason;
  }
}

// The number of the last descriptor that there can be.
int lastDescriptor() {
  int last = -1;
  for (int next = 0; next >= 0; next = ::dup(STDIN_FILENO)) last = std::max(last, next);
  return last;
}

TEST_F(Confinement, LeavesALimitThatIsLowerAlready) {
  const ProcessLimits limits = {.files = 16};
  EXPECT_EQ(resultOf(lastDescriptor, limits), 15);
  const pid_t child = ::fork();
  if (child == 0) {
    const rlimit low{12, 12};
    ::setrlimit(RLIMIT_NOFILE, &low);
    ::_exit(confine(limits) ? lastDescriptor() : kNotConfined);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), 11);
}

}  // namespace
}  // namespace cutline
