// From Print to the dialog's end.
#include <gtest/gtest.h>

#include <QFile>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "host/core/CommandLine.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

class PrintingTest : public DialogTest {
 protected:
  QString pathSent() { return QString::fromStdString(server().submissions().back().path); }
};

TEST_F(PrintingTest, WhatIsShownIsWhatIsSent) {
  openQueue(samplePpd("tape-a"));
  click(box("LxMirror"));
  const OptionList shown = model().jobOptions();
  click(printButton());
  ASSERT_TRUE(waitForPrinted());
  ASSERT_EQ(server().submissions().size(), 1u);
  const PrintRequest request = server().submissions().front();
  EXPECT_EQ(request.options, shown);
  EXPECT_EQ(request.destination.text(), "tape");
  EXPECT_EQ(request.title, "labels");
}

TEST_F(PrintingTest, AFinishedJobIsNamedAndClosingIsASuccessThen) {
  openQueue(samplePpd("roll"));
  server().setStatuses({jobStatus(JobState::pending),
                        jobStatus(JobState::processing, "Printing label 1"),
                        jobStatus(JobState::completed)});
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printed 3 labels.")); }));
  EXPECT_TRUE(dialog().isVisible());
  waitForClicks();
  click(buttonWithText<QPushButton>("Close"));
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
}

TEST_F(PrintingTest, ReturnPrints) {
  openQueue(samplePpd("tape-a"));
  press(named<QWidget>("Copies"), Qt::Key_Return);
  EXPECT_TRUE(waitForPrinted());
  EXPECT_EQ(server().submissions().size(), 1u);
}

TEST_F(PrintingTest, EscapeCancels) {
  openQueue(samplePpd("tape-a"));
  press(&dialog(), Qt::Key_Escape);
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitCancelled);
  EXPECT_TRUE(server().submissions().empty());
}

TEST_F(PrintingTest, ClosingTheWindowCancels) {
  openQueue(samplePpd("tape-a"));
  dialog().close();
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitCancelled);
}

TEST_F(PrintingTest, TheStateOfTheJobIsShownWhileItPrints) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::processing, "Printing label 7")});
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printing label 7")); }));
  EXPECT_FALSE(box("LxHalfCut")->isEnabled());
  server().setStatuses({jobStatus(JobState::completed)});
  EXPECT_TRUE(waitForPrinted());
}

TEST_F(PrintingTest, AJobThatIsSentCanBeCancelled) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::processing)});
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Job 17")); }));
  waitForClicks();
  click(buttonWithText<QPushButton>("Cancel &job"));
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("was cancelled")); }));
  EXPECT_EQ(server().cancellations(), 1);
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(PrintingTest, SpoolingShowsItsProgressAndCanBeGivenUp) {
  openQueue(samplePpd("tape-a"));
  server().stallSubmission();
  click(printButton());
  auto* bar = named<QProgressBar>("Progress of the job");
  EXPECT_TRUE(waitUntil([bar] { return bar->isVisible() && bar->value() == 50; }));
  waitForClicks();
  click(buttonWithText<QPushButton>("Cancel &job"));
  EXPECT_TRUE(waitUntil([this] { return printButton()->isVisible(); }));
  EXPECT_TRUE(server().submissions().empty());
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(PrintingTest, AJobMayBeLeftToPrint) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::pending)});
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Job 17")); }));
  waitForClicks();
  click(buttonWithText<QPushButton>("Close and &let it print"));
  EXPECT_TRUE(waitForClose());
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
  EXPECT_EQ(server().cancellations(), 0);
}

TEST_F(PrintingTest, ARefusedJobIsNamedAndCanBeTriedAgain) {
  openQueue(samplePpd("tape-a"));
  server().refuseSubmission("tape: the server has no room; remove old jobs");
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("the server has no room")); }));
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_TRUE(printButton()->isVisible() && printButton()->isEnabled());
}

TEST_F(PrintingTest, AnAbortedJobLeavesTheDialogOpenWithTheReason) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::aborted, "cutter jammed")});
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("cutter jammed")); }));
  EXPECT_TRUE(shows(QStringLiteral("print again")));
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(PrintingTest, AnAbortedJobCanBePrintedAgain) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::aborted, "cutter jammed")});
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("cutter jammed")); }));
  server().setStatuses({jobStatus(JobState::completed)});
  waitForClicks();
  click(printButton());
  EXPECT_TRUE(waitForPrinted());
  EXPECT_EQ(server().submissions().size(), 2u);
  EXPECT_EQ(dialog().exitStatus(), kExitDone);
}

TEST_F(PrintingTest, APpdAlonePrintsNothingAndSaysWhy) {
  openPpd(samplePpd("tape-a"));
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_TRUE(shows(QStringLiteral("PPD file, no printer: printing is switched off")));
  press(named<QWidget>("Copies"), Qt::Key_Return);
  QTest::qWait(50);
  EXPECT_TRUE(server().submissions().empty());
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(PrintingTest, ADamagedDocumentIsNotPrinted) {
  composer().fail("labels.pdf: the PDF is damaged");
  openQueue(samplePpd("tape-a"));
  EXPECT_TRUE(
      waitUntil([this] { return shows(QStringLiteral("labels.pdf: the PDF is damaged")); }));
  EXPECT_FALSE(printButton()->isEnabled());
}

TEST_F(PrintingTest, WhatIsComposedForTheChosenPagesIsSent) {
  openQueue(samplePpd("tape-a"));
  ASSERT_TRUE(model().setPageRanges("2-3"));
  click(printButton());
  ASSERT_TRUE(waitForPrinted());
  const CompositionRequest request = composer().requests().back();
  EXPECT_EQ(request.pages.ranges.text(), "2-3");
  EXPECT_EQ(request.label, model().label());
  EXPECT_EQ(server().contents(), std::vector<std::string>{composedText(request)});
}

TEST_F(PrintingTest, TheComposedFileIsGoneOnceItIsSent) {
  openQueue(samplePpd("tape-a"));
  click(printButton());
  ASSERT_TRUE(waitForPrinted());
  EXPECT_TRUE(waitUntil([this] { return !QFile::exists(pathSent()); }));
}

TEST_F(PrintingTest, ComposingShowsAndCanBeGivenUp) {
  openQueue(samplePpd("tape-a"));
  composer().hold();
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("Composing")); }));
  waitForClicks();
  click(buttonWithText<QPushButton>("Cancel &job"));
  EXPECT_TRUE(waitUntil([this] { return printButton()->isVisible(); }));
  EXPECT_EQ(composer().stopped(), 1);
  EXPECT_TRUE(server().submissions().empty());
}

TEST_F(PrintingTest, WhatCannotBeComposedIsNotSent) {
  openQueue(samplePpd("tape-a"));
  composer().fail("labels.pdf: it has changed");
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("labels.pdf: it has changed")); }));
  EXPECT_TRUE(server().submissions().empty());
  EXPECT_TRUE(printButton()->isVisible());
}

}  // namespace

}  // namespace cutline
