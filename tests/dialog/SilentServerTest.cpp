// A print server that falls silent while a job is sent or watched.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>

#include "host/core/CommandLine.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

constexpr int kSmallestWidth = 800;

class SilentServerTest : public DialogTest {
 protected:
  void startJob() {
    openQueue(samplePpd("tape-a"));
    click(box("LxHalfCut"));
    click(printButton());
  }
  // Until the server has the job and tells that it prints.
  void startWatching() {
    server().setStatuses({jobStatus(JobState::processing, "Printing label 7")});
    startJob();
    ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printing label 7")); }));
  }
  void cancelJob() {
    waitForClicks();
    click(buttonWithText<QPushButton>("Cancel &job"));
  }
  // The dialog takes clicks again within a second, with the settings as they were.
  void expectBackInASecond() {
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(waitUntil([this] { return printButton()->isVisible(); }));
    EXPECT_LT(time.elapsed(), 1000);
    EXPECT_EQ(sent()["LxHalfCut"], "ON");
  }
};

TEST_F(SilentServerTest, AJobThatIsWatchedIsSaidToBeUnknownUntilItIsKnownAgain) {
  startWatching();
  server().setGone(false, /*isSilent=*/true);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("does not answer how it is")); }));
  EXPECT_LE(dialog().minimumSizeHint().width(), kSmallestWidth);
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printing label 7")); }));
  server().setStatuses({jobStatus(JobState::completed)});
  EXPECT_TRUE(waitForPrinted());
}

// Ten questions take four seconds.
TEST_F(SilentServerTest, AJobThatIsWatchedIsNotGivenUpWhileTheServerIsGone) {
  startWatching();
  server().setGone(true);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("does not answer how it is")); }));
  EXPECT_FALSE(QTest::qWaitFor([this] { return printButton()->isVisible(); }, 5000));
  server().setStatuses({jobStatus(JobState::completed)});
  server().setGone(false);
  EXPECT_TRUE(waitForPrinted());
}

TEST_F(SilentServerTest, CancellingIsAskedAgainWhenTheServerIsBack) {
  startWatching();
  server().setGone(true);
  cancelJob();
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("is cancelled when the print")); }));
  EXPECT_EQ(server().cancellations(), 0);
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("The job was cancelled.")); }));
  EXPECT_EQ(server().cancellations(), 1);
}

TEST_F(SilentServerTest, AJobThatIsNotAllSentIsCancelledWithinASecond) {
  server().silenceSubmissionAfter(50);
  startJob();
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Sending to tape")); }));
  cancelJob();
  expectBackInASecond();
  EXPECT_TRUE(shows(QStringLiteral("The job was cancelled.")));
  server().setGone(false);
  QTest::qWait(50);
  EXPECT_EQ(server().cancellations(), 0);
}

TEST_F(SilentServerTest, AJobThatMayHaveArrivedIsSaidToBeInDoubtUntilItIsTakenBack) {
  server().silenceSubmissionAfter(99);
  startJob();
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Sending to tape")); }));
  cancelJob();
  expectBackInASecond();
  EXPECT_TRUE(shows(QStringLiteral("may have the job that you cancelled")));
  EXPECT_EQ(dialog().exitStatus(), kExitError);
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("The job was cancelled.")); }));
  EXPECT_EQ(server().cancellations(), 1);
}

TEST_F(SilentServerTest, ALaterJobIsNotTakenForTheOneThatIsInDoubt) {
  server().silenceSubmissionAfter(99);
  startJob();
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Sending to tape")); }));
  cancelJob();
  expectBackInASecond();
  server().silenceSubmissionAfter(50);
  waitForClicks();
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Sending to tape")); }));
  server().setGone(false);
  EXPECT_TRUE(waitUntil([this] { return printButton()->isVisible(); }));
  EXPECT_TRUE(shows(QStringLiteral("iven up")));
}

}  // namespace
}  // namespace cutline
