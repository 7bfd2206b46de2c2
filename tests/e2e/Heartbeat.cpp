#include "tests/e2e/Heartbeat.h"

#include <algorithm>
#include <fstream>

namespace cutline::test {

namespace {

constexpr int kBeatMilliseconds = 5;
constexpr qint64 kNanosecondsInOne = 1'000'000;

// How long this thread has been ready to run and did not.
qint64 nanosecondsWithoutProcessor() {
  qint64 run = 0;
  qint64 waited = 0;
  std::ifstream("/proc/thread-self/schedstat") >> run >> waited;
  return waited;
}

}  // namespace

Heartbeat::Heartbeat() : mWaitedBefore(nanosecondsWithoutProcessor()) {
  mTimer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&mTimer, &QTimer::timeout, [this] { beat(); });
  mTimer.start(kBeatMilliseconds);
  mSinceLast.start();
}

void Heartbeat::beat() {
  const qint64 waited = nanosecondsWithoutProcessor();
  const qint64 own = mSinceLast.nsecsElapsed() - (waited - mWaitedBefore);
  mLongest = std::max(mLongest, static_cast<int>(own / kNanosecondsInOne) - kBeatMilliseconds);
  mWaitedBefore = waited;
  mSinceLast.start();
}

}  // namespace cutline::test
