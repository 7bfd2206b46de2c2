// Runs the tests with an application that needs no display, in the program's own style, and with a
// print server.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <memory>

#include "host/dialog/Appearance.h"
#include "tests/e2e/EndToEndTest.h"

namespace cutline::test {

namespace {

std::unique_ptr<PrivateServer> theServer;

int runTests() {
  theServer = std::make_unique<PrivateServer>();
  theServer->enterEnvironment();
  const int status = RUN_ALL_TESTS();
  theServer.reset();
  return status;
}

}  // namespace

PrivateServer& server() { return *theServer; }

}  // namespace cutline::test

// The server's environment is entered before the first call of libcups, which reads it once a
// thread.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir runtimeDirectory;
  qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  cutline::applyStyle();
  cutline::applyAppearance(false);
  return cutline::test::runTests();
}
