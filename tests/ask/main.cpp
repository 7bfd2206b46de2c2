// Runs the tests with an application that needs no display, in the program's own style, and with a
// print server of the distribution's own policy.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "host/dialog/Appearance.h"
#include "tests/ask/Desk.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir runtimeDirectory;
  qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  cutline::applyStyle();
  cutline::applyAppearance(false);
  return cutline::test::runAllTestsWithAskServer();
}
