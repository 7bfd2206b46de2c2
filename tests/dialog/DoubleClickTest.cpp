// Hands that click twice, and keys that are held down.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <cstdlib>

#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

// Between the two clicks of a quick hand and of a slow one.
constexpr int kPauses[] = {0, 1, 5, 20, 60, 120, 250, 400};
constexpr int kSlowestDoubleClick = 450;

class DoubleClickTest : public DialogTest {
 protected:
  // Reaches whatever stands at the place by then, as a mouse does.
  void clickAt(const QPoint& place) {
    QTest::mouseClick(dialog().windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  }
  // No where the machine was so busy that the second click came as late as a click of its own.
  bool clickTwice(QWidget* button, int pause) {
    const QPoint place = button->mapTo(&dialog(), button->rect().center());
    QElapsedTimer time;
    time.start();
    clickAt(place);
    QTest::qWait(pause);
    const bool isInTime = time.elapsed() < kSlowestDoubleClick;
    if (isInTime) clickAt(place);
    return isInTime;
  }
  std::size_t jobs() { return server().submissions().size(); }
};

TEST_F(DoubleClickTest, EachDoubleClickOnPrintIsOneJobAndNoneIsCancelled) {
  const std::size_t rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 1000 : 20;
  openQueue(samplePpd("tape-a"));
  std::size_t singleClicks = 0;
  for (std::size_t round = 1; round <= rounds; ++round) {
    if (round % 2 == 0)
      server().setStatuses({jobStatus(JobState::processing), jobStatus(JobState::completed)});
    if (!clickTwice(printButton(), kPauses[round % std::size(kPauses)])) ++singleClicks;
    ASSERT_TRUE(waitForPrinted()) << round;
    waitForClicks();
    ASSERT_EQ(jobs(), round);
  }
  EXPECT_LT(singleClicks, rounds / 2);
  EXPECT_EQ(server().cancellations(), 0);
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(DoubleClickTest, ManyClicksOnPrintNeitherCancelNorLeaveTheJob) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::processing)});
  const QPoint place = printButton()->mapTo(&dialog(), printButton()->rect().center());
  for (int i = 0; i < 12; ++i) {
    clickAt(place);
    QTest::qWait(100);
  }
  EXPECT_EQ(jobs(), 1u);
  EXPECT_EQ(server().cancellations(), 0);
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(DoubleClickTest, ReturnThatIsHeldDownPrintsOnce) {
  openQueue(samplePpd("tape-a"));
  press(named<QWidget>("Copies"), Qt::Key_Return);
  ASSERT_TRUE(waitForPrinted());
  for (int i = 0; i < 12; ++i) {
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, /*autorep=*/true);
    QApplication::sendEvent(QApplication::focusWidget(), &again);
    QTest::qWait(60);
  }
  EXPECT_EQ(jobs(), 1u);
}

TEST_F(DoubleClickTest, ASecondReturnOrSpaceRightAfterTheJobPrintsNothing) {
  openQueue(samplePpd("tape-a"));
  press(named<QWidget>("Copies"), Qt::Key_Return);
  ASSERT_TRUE(waitForPrinted());
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
    QTest::keyClick(QApplication::focusWidget(), key);
  QTest::qWait(100);
  EXPECT_EQ(jobs(), 1u);
  waitForClicks();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(waitUntil([this] { return jobs() == 2; }));
}

TEST_F(DoubleClickTest, ADoubleClickOnCancelJobChangesNothingElse) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::processing)});
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Job 17")); }));
  waitForClicks();
  auto* more = buttonWithText<QPushButton>("&More printer options");
  clickTwice(buttonWithText<QPushButton>("Cancel &job"), 400);
  EXPECT_TRUE(waitUntil([more] { return more->isVisible(); }));
  EXPECT_FALSE(more->isChecked());
  EXPECT_EQ(server().cancellations(), 1);
}

}  // namespace

}  // namespace cutline
