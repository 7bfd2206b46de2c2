// Runs the tests with a print server and a desktop's session.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/portal/PortalSession.h"
#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  testing::AddGlobalTestEnvironment(new cutline::test::PortalSession);
  return cutline::test::runAllTestsWithServer(
      "office=" + cutline::test::quoted(cutline::test::source("tests/portal/office.ppd")));
}
