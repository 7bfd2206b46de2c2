// Runs the tests with an application that needs no display.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  const QTemporaryDir runtimeDirectory;
  qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
  qputenv("XDG_STATE_HOME", runtimeDirectory.filePath(QStringLiteral("state")).toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  return RUN_ALL_TESTS();
}
