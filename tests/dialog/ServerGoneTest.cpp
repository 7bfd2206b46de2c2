// A print server that goes, and comes back, while the dialog is open.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QTest>

#include "host/dialog/NoticeView.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

class ServerGoneTest : public DialogTest {
 protected:
  void open() {
    openQueue(samplePpd("tape-a"));
    dialog().startWatching();
    ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Ready")); }));
  }
  bool isGone() const { return shows(QStringLiteral("The print server does not answer")); }
};

TEST_F(ServerGoneTest, ItIsSaidInTheWindowAndTakenBack) {
  open();
  server().setGone(true);
  EXPECT_TRUE(waitUntil([this] { return isGone(); }));
  EXPECT_FALSE(shows(QStringLiteral("Ready")));
  server().addPrinter("new", samplePpd("roll"));
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return !isGone() && shows(QStringLiteral("Ready")); }));
  auto* printers = named<QComboBox>("Printer");
  EXPECT_TRUE(waitUntil([&] { return printers->findData(QStringLiteral("new")) >= 0; }));
}

TEST_F(ServerGoneTest, ASilentServerIsNoticedWithoutWaitingForIt) {
  open();
  server().setGone(false, /*isSilent=*/true);
  EXPECT_TRUE(waitUntil([this] { return isGone(); }));
  click(box("LxHalfCut"));
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return !isGone(); }));
}

TEST_F(ServerGoneTest, AServerThatTakesItsTimeIsWaitedForCalmly) {
  open();
  server().setGone(false, /*isSilent=*/true);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Waiting for the print server")); }));
  EXPECT_FALSE(isGone());
  EXPECT_FALSE(shows(QStringLiteral("No answer")));
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Ready")); }));
}

TEST_F(ServerGoneTest, APrinterThatIsGoneIsNotAServerThatIsGone) {
  open();
  server().removePrinter("tape");
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("nknown printer tape")); }));
  EXPECT_FALSE(isGone());
  EXPECT_TRUE(shows(QStringLiteral("Not available")));
}

}  // namespace
}  // namespace cutline
