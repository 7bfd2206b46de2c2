#include "ask/AskService.h"

#include <algorithm>

namespace cutline {

namespace {

constexpr std::chrono::milliseconds kPause{1000};
// Where no program can print to an ask queue, or no server is there.
constexpr std::chrono::milliseconds kLongPause{10'000};
// So many looks without news, and it is looked all the same: nothing is to wait for ever.
constexpr int kMostQuiet = 30;

}  // namespace

std::optional<int> AskService::next() {
  if (mustLook()) look();
  const auto found =
      std::ranges::find_if(mWaiting, [this](int job) { return !mOffered.contains(job); });
  if (found == mWaiting.end()) return std::nullopt;
  const int job = *found;
  mOffered.insert(job);
  // The window takes its time, in which anything may happen.
  mIsSure = false;
  return job;
}

bool AskService::mustLook() {
  switch (mSources.news()) {
    case JobEvents::News::noServer:
      mIsSure = false;
      mHasQueues = false;
      return false;
    case JobEvents::News::none:
      return !mIsSure || ++mQuiet >= kMostQuiet;
    case JobEvents::News::some:
    case JobEvents::News::unknown:
      break;
  }
  return true;
}

void AskService::look() {
  mQuiet = 0;
  const Result<std::vector<HeldJob>> waiting = mSources.waiting();
  mIsSure = static_cast<bool>(waiting);
  if (!waiting) return;
  mHasQueues = mSources.hasQueues();
  std::vector<int> now;
  for (const HeldJob& job : *waiting) {
    // A document that is on its way is looked for again.
    if (!job.isWhole) mIsSure = false;
    if (job.isWhole) now.push_back(job.id);
  }
  const bool hasNew = std::ranges::any_of(now, [this](int job) {
    return std::ranges::find(mWaiting, job) == mWaiting.end() && !mOffered.contains(job);
  });
  if (hasNew) offerAgain();
  std::erase_if(mOffered, [&](int job) { return std::ranges::find(now, job) == now.end(); });
  mWaiting = std::move(now);
}

void AskService::offerAgain() { mOffered.clear(); }

std::chrono::milliseconds AskService::pause() const noexcept {
  return mHasQueues || !mWaiting.empty() ? kPause : kLongPause;
}

}  // namespace cutline
