#include "tests/support/qt/waiting.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace cutline::test {

namespace {

constexpr int kLookAgain = 10;

}  // namespace

// The toolkit's own sleeps between two looks, and each answer of a thread would cost such a sleep.
bool waitUntil(const std::function<bool()>& condition, int milliseconds) {
  QTimer again;
  again.start(kLookAgain);
  const QDeadlineTimer end(milliseconds);
  while (!condition()) {
    if (end.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

}  // namespace cutline::test
