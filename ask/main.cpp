// A user's service: opens the dialog on each job that the user's programs print to an ask queue. It
// ends with SIGTERM; SIGHUP has it ask again about what waits and was not answered.
#include <sys/prctl.h>
#include <sys/wait.h>

#include <csignal>
#include <ctime>
#include <iostream>

#include "ask/AskService.h"
#include "ask/Window.h"
#include "base/UserLock.h"
#include "cups/AskQueue.h"

namespace cutline {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr std::chrono::milliseconds kWhileOpen{60'000};

void note(const std::string& text) { std::cerr << "cutline-ask: " << text << std::endl; }

const sigset_t& signals() {
  static const sigset_t all = [] {
    sigset_t set;
    sigemptyset(&set);
    for (const int each : {SIGTERM, SIGINT, SIGHUP, SIGCHLD}) sigaddset(&set, each);
    return set;
  }();
  return all;
}

// The signal that came within this time, or 0.
int waitForSignal(std::chrono::milliseconds most) {
  constexpr long kPerSecond = 1000;
  constexpr long kNanoseconds = 1'000'000;
  const timespec time{most.count() / kPerSecond, most.count() % kPerSecond * kNanoseconds};
  const int signal = sigtimedwait(&signals(), nullptr, &time);
  return signal > 0 ? signal : 0;
}

bool endsService(int signal) { return signal == SIGTERM || signal == SIGINT; }

bool hasEnded(pid_t window) { return ::waitpid(window, nullptr, WNOHANG) != 0; }

// Waits until the window has closed; false where the service is to end before. The window stays
// then, and its job is in its hands.
bool awaitWindow(pid_t window, AskService& service) {
  while (!hasEnded(window)) {
    const int signal = waitForSignal(kWhileOpen);
    if (endsService(signal)) return false;
    if (signal == SIGHUP) service.offerAgain();
  }
  return true;
}

AskSources sourcesOn(const ServerOptions& server, JobEvents& events) {
  return {[&events] { return events.look(); }, [server] { return heldJobs(server); },
          [server] {
            const Result<std::vector<AskQueue>> queues = askQueues(server);
            return !queues || !queues->empty();
          }};
}

int serve() {
  const ServerOptions server;
  JobEvents events(server);
  AskService service(sourcesOn(server, events));
  const std::string program = dialogProgram();
  for (;;) {
    while (const std::optional<int> job = service.next()) {
      const Result<pid_t> window = openWindow(program, *job);
      if (!window) note(window.error().message);
      if (window && !awaitWindow(*window, service)) return kDone;
    }
    const int signal = waitForSignal(service.pause());
    if (endsService(signal)) return kDone;
    if (signal == SIGHUP) service.offerAgain();
  }
}

int run() {
  sigprocmask(SIG_BLOCK, &signals(), nullptr);
  // A desktop without a service manager starts it as a child of its session, and it ends with that.
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  // Started a second time, by another part of the desktop, it has nothing to do.
  const Result<FileDescriptor> only = takeUserLock("ask");
  if (only && *only) return serve();
  note(only ? "it runs already" : only.error().message);
  return only ? kDone : kFailed;
}

}  // namespace
}  // namespace cutline

int main() {
  try {
    return cutline::run();
  } catch (const std::exception& reason) {
    cutline::note(reason.what());
    return cutline::kFailed;
  }
}
