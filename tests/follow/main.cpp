// Runs the tests on a session's bus of their own and with a print server.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "tests/access/SessionBus.h"
#include "tests/support/EndToEndTest.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const cutline::test::SessionBus bus;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return cutline::test::runAllTestsWithServer();
}
