#include "host/core/JobEnd.h"

namespace cutline {

namespace {

constexpr int kMostMissed = 10;  // answers in a row
constexpr int kMissedUntilNote = 2;

std::string inBrackets(const std::string& text) { return text.empty() ? "" : " (" + text + ")"; }

Error nothingCame(const JobWatch& watch, const std::string& what, const JobStatus& status) {
  return {"the job " + watch.job + " " + what + inBrackets(status.message)};
}

Result<Done> judge(const JobWatch& watch, const JobStatus& status) {
  if (status.state == JobState::canceled) return nothingCame(watch, "was cancelled", status);
  if (status.state == JobState::aborted)
    return nothingCame(watch, "was given up by the printer", status);
  if (status.pages == 0) return nothingCame(watch, "ended without a printed page", status);
  return Done{};
}

bool isStuck(const JobStatus& status) {
  if (status.state == JobState::held || status.state == JobState::stopped) return true;
  return status.state == JobState::pending && status.saysMoreThanItsState();
}

// The printer's own trouble tells more than that the job stands.
std::string reasonToWait(const JobWatch& watch, const JobStatus& status) {
  const std::string trouble = watch.trouble ? watch.trouble() : std::string();
  if (!trouble.empty()) return trouble;
  return isStuck(status) ? status.text().english() : std::string();
}

}  // namespace

Result<Done> waitForEnd(const JobWatch& watch) {
  std::string noted;
  const auto noteOnce = [&](const std::string& text) {
    if (text.empty() || text == noted) return;
    watch.note("the job " + watch.job + ": " + text);
    noted = text;
  };
  for (int missed = 0;; watch.pause()) {
    const Result<JobStatus> status = watch.ask();
    if (!status) {
      const std::string& why = status.error().message;
      if (++missed == kMostMissed)
        return Error{"the job " + watch.job + " was sent, and how it ends is not known: " + why};
      if (missed == kMissedUntilNote) noteOnce("its state is not known: " + why);
      continue;
    }
    missed = 0;
    if (status->isFinal()) return judge(watch, *status);
    noteOnce(reasonToWait(watch, *status));
  }
}

}  // namespace cutline
