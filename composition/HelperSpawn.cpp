#include "composition/HelperSpawn.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "base/FileDescriptor.h"

namespace cutline {
namespace {

constexpr int kFile = STDERR_FILENO + 1;
constexpr int kAbove = kFile + 1;

// The sanitizers write what they find to standard error; otherwise a reader's own words there help
// nobody.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kIsHeard = true;
#else
constexpr bool kIsHeard = false;
#endif

// What the new process does with its descriptors, and how its signals begin.
class SpawnPlan {
 public:
  SpawnPlan() noexcept {
    ::posix_spawn_file_actions_init(&mActions);
    ::posix_spawnattr_init(&mAttributes);
  }
  ~SpawnPlan() {
    ::posix_spawn_file_actions_destroy(&mActions);
    ::posix_spawnattr_destroy(&mAttributes);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  void pass(const FileDescriptor& source, int number) noexcept {
    if (source) ::posix_spawn_file_actions_adddup2(&mActions, source.get(), number);
  }
  void closeFrom(int number) noexcept {
    if (!kIsHeard)
      ::posix_spawn_file_actions_addopen(&mActions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&mActions, number);
  }

  // A process group of its own, so that it ends with whatever it started; every signal as a new
  // program has it.
  void setSignals() noexcept {
    sigset_t all;
    sigset_t none;
    ::sigfillset(&all);
    ::sigemptyset(&none);
    ::posix_spawnattr_setsigdefault(&mAttributes, &all);
    ::posix_spawnattr_setsigmask(&mAttributes, &none);
    ::posix_spawnattr_setpgroup(&mAttributes, 0);
    ::posix_spawnattr_setflags(
        &mAttributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP);
  }

  int run(const char* program, pid_t& process) const noexcept {
    char* const arguments[] = {const_cast<char*>(program), nullptr};
    return ::posix_spawn(&process, program, &mActions, &mAttributes, arguments, ::environ);
  }

 private:
  posix_spawn_file_actions_t mActions{};
  posix_spawnattr_t mAttributes{};
};

FileDescriptor copyAbove(int source) noexcept {
  return FileDescriptor(::fcntl(source, F_DUPFD_CLOEXEC, kAbove));
}

}  // namespace

int spawnHelper(const HelperStart& start, pid_t& process) noexcept {
  // Out of the way first: a source may have the very number that another is to get.
  const FileDescriptor input = copyAbove(start.input);
  const FileDescriptor output = input ? copyAbove(start.output) : FileDescriptor();
  const bool hasFile = start.file >= 0;
  const FileDescriptor file = output && hasFile ? copyAbove(start.file) : FileDescriptor();
  if (!output || (hasFile && !file)) return errno;
  SpawnPlan plan;
  plan.pass(input, STDIN_FILENO);
  plan.pass(output, STDOUT_FILENO);
  plan.pass(file, kFile);
  plan.closeFrom(hasFile ? kAbove : kFile);
  plan.setSignals();
  return plan.run(start.program, process);
}

int spawnWaitingHelper(const char* program, WaitingHelper& helper) noexcept {
  int request[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, request) != 0) return errno;
  FileDescriptor ours(request[0]);
  const FileDescriptor theirs(request[1]);
  int answer[2];
  if (::pipe2(answer, O_CLOEXEC) != 0) return errno;
  FileDescriptor end(answer[0]);
  const FileDescriptor start(answer[1]);
  const int problem = spawnHelper({program, theirs.get(), start.get()}, helper.process);
  if (problem != 0) return problem;
  helper.request = ours.release();
  helper.answer = end.release();
  return 0;
}

}  // namespace cutline
