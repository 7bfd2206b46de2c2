#include "host/core/SettingsHistory.h"

#include <utility>

namespace cutline {
namespace {

constexpr std::size_t kMostSteps = 200;

}  // namespace

void SettingsHistory::start(Settings now) {
  mSteps.clear();
  mSteps.push_back(std::move(now));
  mNow = 0;
}

void SettingsHistory::note(Settings now) {
  if (mSteps.empty()) return start(std::move(now));
  if (mSteps[mNow] == now) return;
  mSteps.resize(mNow + 1);
  mSteps.push_back(std::move(now));
  if (mSteps.size() > kMostSteps) mSteps.erase(mSteps.begin());
  mNow = mSteps.size() - 1;
}

void SettingsHistory::amend(Settings now) {
  if (mSteps.empty()) return start(std::move(now));
  mSteps[mNow] = std::move(now);
}

}  // namespace cutline
