// How long the thread that draws was kept from taking events.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace cutline::test {

// Beats while the event loop runs, from its making on.
class Heartbeat {
 public:
  Heartbeat();

  // Milliseconds of the longest time between two beats, without what this thread waited for a
  // processor in it: that is the machine's doing.
  int longestStall() const noexcept { return mLongest; }

 private:
  void beat();

  QTimer mTimer;
  QElapsedTimer mSinceLast;
  qint64 mWaitedBefore;  // nanoseconds
  int mLongest = 0;
};

}  // namespace cutline::test
