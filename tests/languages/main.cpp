// Runs the tests with an application that needs no display, in the program's own style and with the
// fonts that its texts are measured in.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "host/dialog/Appearance.h"

int main(int argc, char** argv) {
  // The tests choose the language; a locale of the process's own would come before it in libcups.
  for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) qunsetenv(name);
  const QTemporaryDir runtimeDirectory;
  qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
  qputenv("XDG_STATE_HOME", runtimeDirectory.filePath(QStringLiteral("state")).toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("FONTCONFIG_FILE", CUTLINE_SOURCE_DIR "/tests/languages/fonts.conf");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  cutline::applyStyle();
  cutline::applyAppearance(false);
  return RUN_ALL_TESTS();
}
