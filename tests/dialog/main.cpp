// Runs the tests with an application that needs no display, in the program's own style.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "host/dialog/Appearance.h"

int main(int argc, char** argv) {
  const QTemporaryDir runtimeDirectory;
  qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
  qputenv("XDG_STATE_HOME", runtimeDirectory.filePath(QStringLiteral("state")).toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  // A test that closes its only window would end every loop that a later one waits in.
  QApplication::setQuitOnLastWindowClosed(false);
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  cutline::applyStyle();
  cutline::applyAppearance(false);
  return RUN_ALL_TESTS();
}
