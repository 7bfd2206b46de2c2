#include "follow/JobFollower.h"

#include <algorithm>

namespace cutline {

namespace {

constexpr int kMostMissed = 30;
// A printer that wakes up, or changes its tape, needs a moment.
constexpr int kLasting = 3;

// Whoever cancels his own job knows it.
bool isOwnWish(const JobStatus& status) {
  return std::ranges::find(status.reasons, "job-canceled-by-user") != status.reasons.end();
}

bool standsStill(const JobStatus& status) {
  const bool isStopped = status.state == JobState::stopped || status.state == JobState::held;
  return isStopped || (status.state == JobState::pending && status.saysMoreThanItsState());
}

Sentence whyOf(const JobStatus& status) {
  return status.message.empty() ? status.text() : Sentence(status.message);
}

}  // namespace

std::optional<JobNews> JobFollower::take(const Result<JobStatus>& status, const Sentence& trouble) {
  if (!status) {
    mIsOver = ++mMissed >= kMostMissed;
    return std::nullopt;
  }
  mMissed = 0;
  if (status->isFinal()) return takeEnd(*status);
  if (!trouble.english().empty()) return takeStandstill(trouble);
  if (standsStill(*status)) return takeStandstill(status->text());
  mStandstill = 0;
  return std::nullopt;
}

std::optional<JobNews> JobFollower::takeEnd(const JobStatus& status) {
  mIsOver = true;
  if (status.state == JobState::completed) return std::nullopt;
  if (status.state == JobState::canceled && isOwnWish(status)) return std::nullopt;
  return JobNews{{Phrase("host", "\"%1\" was not printed"), {mTitle}}, whyOf(status)};
}

std::optional<JobNews> JobFollower::takeStandstill(const Sentence& reason) {
  if (++mStandstill < kLasting || reason.english() == mTold) return std::nullopt;
  mTold = reason.english();
  return JobNews{{Phrase("host", "\"%1\" is still waiting to be printed"), {mTitle}}, reason};
}

}  // namespace cutline
