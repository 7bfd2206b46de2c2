#include "tests/support/qt/waiting.h"

#include <QTest>

namespace cutline::test {

namespace {}  // namespace

bool waitUntil(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, kLongWait);
}

}  // namespace cutline::test
