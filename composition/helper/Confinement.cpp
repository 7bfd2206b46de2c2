#include "composition/helper/Confinement.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "base/FileDescriptor.h"
#include "composition/helper/SystemCalls.h"

namespace cutline {
namespace {

// Every right that the first version of Landlock knows, and of these what reading takes.
constexpr std::uint64_t kAllRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1U) - 1;
constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

bool limit(decltype(RLIMIT_CORE) resource, std::uint64_t most, std::uint64_t hard) {
  rlimit old{};
  if (::getrlimit(resource, &old) != 0) return false;
  const auto least = [](rlim_t a, rlim_t b) { return a < b ? a : b; };
  const rlimit now{least(most, old.rlim_max), least(hard, old.rlim_max)};
  return ::setrlimit(resource, &now) == 0;
}

bool limitUnlessNone(decltype(RLIMIT_CORE) resource, std::uint64_t most) {
  return most == 0 || limit(resource, most, most);
}

bool limitOwnMemory([[maybe_unused]] std::uint64_t bytes) {
#ifdef CUTLINE_SANITIZED
  // The sanitizer's shadow takes terabytes of address space.
  return true;
#else
  return limitUnlessNone(RLIMIT_AS, bytes);
#endif
}

bool setLimits(const ProcessLimits& limits) {
  // A second more for the hard limit: at the soft one SIGXCPU says why it ends.
  const bool isTimed =
      limits.cpuSeconds == 0 || limit(RLIMIT_CPU, limits.cpuSeconds, limits.cpuSeconds + 1U);
  if (limits.wallSeconds > 0) ::alarm(limits.wallSeconds);
  return isTimed && limit(RLIMIT_CORE, 0, 0) && limitUnlessNone(RLIMIT_FSIZE, limits.fileSize) &&
         limitUnlessNone(RLIMIT_NOFILE, limits.files);
}

// No rights from programs that it starts, nobody of the same user looks into it, and it ends with
// who asked for it.
bool setProcess(const ProcessLimits& limits) {
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0 &&
         (!limits.endsWithParent || ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0);
}

bool allowBelow(int rules, const char* path, std::uint64_t rights) {
  const FileDescriptor folder(::open(path, O_PATH | O_CLOEXEC | O_DIRECTORY));
  landlock_path_beneath_attr below{};
  below.allowed_access = rights;
  below.parent_fd = folder.get();
  return folder &&
         ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &below, 0) == 0;
}

// Reading everywhere, and every right below `folder` if there is one. A system without Landlock has
// the filter of calls alone.
bool setView(std::uint64_t everywhere, const char* folder) {
  landlock_ruleset_attr handled{};
  handled.handled_access_fs = kAllRights;
  const FileDescriptor rules(
      static_cast<int>(::syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0)));
  if (!rules) return errno == ENOSYS || errno == EOPNOTSUPP;
  return allowBelow(rules.get(), "/", everywhere) &&
         (!folder || allowBelow(rules.get(), folder, kAllRights)) &&
         ::syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
}

}  // namespace

bool confine(const ProcessLimits& limits) noexcept {
  return setProcess(limits) && setLimits(limits) && limitOwnMemory(limits.memory) &&
         setView(kReading, nullptr) && allowReadingCalls();
}

// The memory comes last: it is the interpreter's, which no sanitizer watches, and hardly enough for
// a program that one does.
bool confineInterpreter(const ProcessLimits& limits, const char* folder) noexcept {
  return setProcess(limits) && setLimits(limits) &&
         setView(kReading | LANDLOCK_ACCESS_FS_EXECUTE, folder) && refuseReachingOut() &&
         limitUnlessNone(RLIMIT_AS, limits.memory);
}

}  // namespace cutline
