// Runs the tests with a print server and with a session of their own for the accessibility bus.
#include <atspi/atspi.h>
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/access/SessionBus.h"
#include "tests/support/EndToEndTest.h"

namespace {

// In milliseconds, for each question to a program.
constexpr int kBusPatience = 5000;
constexpr int kPatienceAtTheStart = 20000;

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  const cutline::test::SessionBus bus;
  qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  qputenv("LC_ALL", "C.UTF-8");
  atspi_init();
  atspi_set_timeout(kBusPatience, kPatienceAtTheStart);
  const int status = cutline::test::runAllTestsWithServer();
  atspi_exit();
  return status;
}
