#include "tests/support/qt/waiting.h"

#include <QTest>

namespace cutline::test {

namespace {

constexpr int kPatience = 20000;

}  // namespace

bool waitUntil(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, kPatience);
}

}  // namespace cutline::test
