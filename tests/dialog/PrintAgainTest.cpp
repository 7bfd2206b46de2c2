// What the buttons say before a job and after it, and how a job ends that was asked to.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "host/core/CommandLine.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

class PrintAgainTest : public DialogTest {
 protected:
  void printAll() {
    click(printButton());
    ASSERT_TRUE(waitForPrinted());
    waitForClicks();
  }
  // Asks the job that prints to be cancelled.
  void cancelJob() {
    server().setStatuses({jobStatus(JobState::processing)});
    click(printButton());
    ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Job 17")); }));
    waitForClicks();
    click(buttonWithText<QPushButton>("Cancel &job"));
  }
  QString title() { return printButton()->text(); }
};

TEST_F(PrintAgainTest, PrintTellsHowManyLabelsItPrints) {
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int 3 labels"));
  ASSERT_TRUE(model().setCopies(4));
  EXPECT_EQ(title(), QStringLiteral("Pr&int 12 labels"));
  ASSERT_TRUE(model().setPageRanges("2-3"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int 8 labels"));
}

TEST_F(PrintAgainTest, ASingleLabelIsOne) {
  composer().setPages(1);
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int 1 label"));
  printAll();
  EXPECT_TRUE(shows(QStringLiteral("Printed 1 label.")));
}

TEST_F(PrintAgainTest, WhatIsNotKnownIsNotTold) {
  setPaths({});
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int"));
  closeDialog();
  composer().fail("damaged");
  setPaths({"/nowhere/labels.pdf"});
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int"));
}

TEST_F(PrintAgainTest, WhatIsPrintedCanBePrintedAgain) {
  openQueue(samplePpd("tape-a"));
  printAll();
  EXPECT_EQ(title(), QStringLiteral("Pr&int again"));
  EXPECT_TRUE(buttonWithText<QPushButton>("Close")->isVisible());
  EXPECT_TRUE(box("LxHalfCut")->isEnabled());
  printAll();
  EXPECT_EQ(server().submissions().size(), 2u);
}

TEST_F(PrintAgainTest, AProgramThatAskedForOneJobGetsTheDialogClosedAfterIt) {
  openQueue(samplePpd("tape-a"));
  dialog().closeAfterJob();
  click(printButton());
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
  EXPECT_EQ(server().submissions().size(), 1u);
}

TEST_F(PrintAgainTest, ADialogForOneJobStaysWhereNothingCameOut) {
  openQueue(samplePpd("tape-a"));
  dialog().closeAfterJob();
  cancelJob();
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("The job was cancelled.")); }));
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(PrintAgainTest, AChangeIsPrintedAnew) {
  openQueue(samplePpd("tape-a"));
  printAll();
  click(box("LxHalfCut"));
  EXPECT_EQ(title(), QStringLiteral("Pr&int 3 labels"));
  EXPECT_FALSE(shows(QStringLiteral("Printed")));
  EXPECT_TRUE(buttonWithText<QPushButton>("Close")->isVisible());
}

TEST_F(PrintAgainTest, EscapeAfterPrintingIsNoCancelling) {
  openQueue(samplePpd("tape-a"));
  printAll();
  press(&dialog(), Qt::Key_Escape);
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
}

TEST_F(PrintAgainTest, TheProgressCountsLabels) {
  openQueue(samplePpd("tape-a"));
  JobStatus status = jobStatus(JobState::processing, "Printing label 2");
  status.pages = 2;
  server().setStatuses({status});
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printing: label 2 of 3")); }));
}

TEST_F(PrintAgainTest, AJobThatIsOutBeforeItIsCancelledIsPrinted) {
  openQueue(samplePpd("tape-a"));
  server().refuseCancelling("the job is already completed", JobState::completed);
  cancelJob();
  EXPECT_TRUE(waitForPrinted());
  EXPECT_FALSE(shows(QStringLiteral("already completed")));
  dialog().close();
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
}

TEST_F(PrintAgainTest, AJobThatMayNotBeCancelledGoesOnAndIsFollowed) {
  openQueue(samplePpd("tape-a"));
  server().refuseCancelling("you may not cancel it", JobState::processing);
  cancelJob();
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("ou may not cancel it")); }));
  EXPECT_TRUE(buttonWithText<QPushButton>("Cancel &job")->isEnabled());
  server().setStatuses({jobStatus(JobState::completed)});
  EXPECT_TRUE(waitForPrinted());
}

TEST_F(PrintAgainTest, ACancelledJobOfWhichNothingCameOutCountsAsCancelled) {
  openQueue(samplePpd("tape-a"));
  cancelJob();
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("The job was cancelled.")); }));
  dialog().close();
  EXPECT_EQ(dialog().exitStatus(), kExitCancelled);
}

}  // namespace

}  // namespace cutline
