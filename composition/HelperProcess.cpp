#include "composition/HelperProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Uninterrupted.h"

namespace cutline {
namespace {

constexpr int kFirstFile = STDERR_FILENO + 1;

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
  SpawnPlan() {
    ::posix_spawn_file_actions_init(&mActions);
    ::posix_spawnattr_init(&mAttributes);
  }
  ~SpawnPlan() {
    ::posix_spawn_file_actions_destroy(&mActions);
    ::posix_spawnattr_destroy(&mAttributes);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  // No, with errno set, when there are no descriptors left.
  bool passFiles(const HelperStart& start) {
    std::vector<int> sources = {start.input, start.output};
    sources.insert(sources.end(), start.files.begin(), start.files.end());
    const int above = kFirstFile + static_cast<int>(start.files.size());
    // Out of the way first: a source may have the very number that another is to get.
    for (const int source : sources) {
      mSources.emplace_back(::fcntl(source, F_DUPFD_CLOEXEC, above));
      if (!mSources.back()) return false;
    }
    for (std::size_t at = 0; at < mSources.size(); ++at) {
      const int number = static_cast<int>(at) + (at < 2 ? 0 : kFirstFile - 2);
      ::posix_spawn_file_actions_adddup2(&mActions, mSources[at].get(), number);
    }
    if (!kIsHeard)
      ::posix_spawn_file_actions_addopen(&mActions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&mActions, above);
    return true;
  }

  // A process group of its own, so that it ends with whatever it started; every signal as a new
  // program has it.
  void setSignals() {
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

  const posix_spawn_file_actions_t* actions() const { return &mActions; }
  const posix_spawnattr_t* attributes() const { return &mAttributes; }

 private:
  posix_spawn_file_actions_t mActions{};
  posix_spawnattr_t mAttributes{};
  std::vector<FileDescriptor> mSources;
};

Error cannotStart(const std::string& program, int reason) {
  return Sentence(Phrase("composition", "cannot start the program \"%1\": %2"),
                  {program, std::string(std::strerror(reason))});
}

}  // namespace

Result<HelperProcess> HelperProcess::start(const HelperStart& start) {
  SpawnPlan plan;
  if (!plan.passFiles(start)) return cannotStart(start.program, errno);
  plan.setSignals();
  std::string name = start.program;
  char* const arguments[] = {name.data(), nullptr};
  pid_t process = 0;
  const int problem = ::posix_spawn(&process, start.program.c_str(), plan.actions(),
                                    plan.attributes(), arguments, ::environ);
  if (problem != 0) return cannotStart(start.program, problem);
  return HelperProcess(process);
}

HelperProcess::HelperProcess(HelperProcess&& other) noexcept
    : mProcess(std::exchange(other.mProcess, 0)) {}

HelperProcess& HelperProcess::operator=(HelperProcess&& other) noexcept {
  std::swap(mProcess, other.mProcess);
  return *this;
}

HelperProcess::~HelperProcess() {
  if (mProcess == 0) return;
  kill();
  wait();
}

void HelperProcess::kill() const noexcept {
  if (mProcess > 0) ::kill(-mProcess, SIGKILL);
}

int HelperProcess::wait() noexcept {
  int status = -1;
  uninterrupted([&] { return ::waitpid(mProcess, &status, 0); });
  mProcess = 0;
  return status;
}

}  // namespace cutline
