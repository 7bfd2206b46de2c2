#include "tests/fuzz/Guarded.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace cutline::fuzz {

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool kIsSanitized = true;
#else
constexpr bool kIsSanitized = false;
#endif

constexpr int kSanitizersShare = 10;
constexpr unsigned kLongestWait = 60;  // seconds

// A number that child and parent see.
class SharedNumber {
 public:
  SharedNumber()
      : mNumber(static_cast<volatile unsigned*>(::mmap(nullptr, sizeof(unsigned),
                                                       PROT_READ | PROT_WRITE,
                                                       MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
    if (mNumber == MAP_FAILED) throw std::runtime_error("no shared memory");
  }
  ~SharedNumber() { ::munmap(const_cast<unsigned*>(mNumber), sizeof(unsigned)); }
  SharedNumber(const SharedNumber&) = delete;
  SharedNumber& operator=(const SharedNumber&) = delete;

  void set(unsigned number) { *mNumber = number; }
  unsigned get() const { return *mNumber; }

 private:
  volatile unsigned* mNumber;
};

int secondsFor(const Bounds& bounds) {
  return bounds.seconds * (kIsSanitized ? kSanitizersShare : 1);
}

// Counted in the processor's time, which no other program's load changes.
void startClock(int seconds) {
  const itimerval timer{{0, 0}, {seconds, 0}};
  ::setitimer(ITIMER_PROF, &timer, nullptr);
  ::alarm(seconds == 0 ? 0 : kLongestWait * (kIsSanitized ? kSanitizersShare : 1));
}

void boundMemory(const Bounds& bounds) {
  if (kIsSanitized) return;
  constexpr rlim_t kMegabyte = 1U << 20U;
  const rlimit limit{static_cast<rlim_t>(bounds.megabytes) * kMegabyte,
                     static_cast<rlim_t>(bounds.megabytes) * kMegabyte};
  ::setrlimit(RLIMIT_AS, &limit);
}

// In the child, which it ends in the usual way, so that leaks are looked for.
[[noreturn]] void doAll(unsigned count, const std::function<void(unsigned)>& work,
                        const Bounds& bounds, SharedNumber& current) noexcept {
  boundMemory(bounds);
  for (unsigned number = 0; number < count; ++number) {
    current.set(number);
    startClock(secondsFor(bounds));
    work(number);
  }
  startClock(0);
  std::exit(0);
}

std::string howItEnded(int status, const Bounds& bounds) {
  if (WIFEXITED(status)) return "status " + std::to_string(WEXITSTATUS(status));
  if (WTERMSIG(status) == SIGPROF)
    return "took more than " + std::to_string(secondsFor(bounds)) + " s";
  if (WTERMSIG(status) == SIGALRM) return "waited for more than a minute";
  return "signal " + std::to_string(WTERMSIG(status));
}

}  // namespace

std::optional<Casualty> doGuarded(unsigned count, const std::function<void(unsigned)>& work,
                                  const Bounds& bounds) {
  SharedNumber current;
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no child process");
  if (child == 0) doAll(count, work, bounds, current);
  int status = 0;
  if (::waitpid(child, &status, 0) != child) throw std::runtime_error("a child process is gone");
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return std::nullopt;
  return Casualty{current.get(), howItEnded(status, bounds)};
}

}  // namespace cutline::fuzz
