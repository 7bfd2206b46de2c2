// Print is pressed before it is known what the documents give.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>

#include "host/dialog/NoticeView.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

class WaitingPrintTest : public DialogTest {
 protected:
  // The first of so many labels is there, the rest is being composed; then Print is pressed.
  void printEarly(int pages) {
    openQueue(samplePpd("tape-a"));
    composer().setPages(pages);
    composer().setPartial();
    composer().holdRest();
    ASSERT_TRUE(model().setCopies(2));
    ASSERT_TRUE(model().setPaper("W24H100"));
    click(printButton());
    ASSERT_TRUE(shows(QStringLiteral("Composing")));
  }
  QMessageBox* question() { return dialog().findChild<QMessageBox*>(); }
};

TEST_F(WaitingPrintTest, TheJobFollowsTheDocuments) {
  printEarly(5);
  EXPECT_TRUE(server().submissions().empty());
  composer().letGo();
  EXPECT_TRUE(waitForPrinted());
  EXPECT_EQ(server().submissions().size(), 1u);
  EXPECT_TRUE(shows(QStringLiteral("Printed 10 labels.")));
}

TEST_F(WaitingPrintTest, MuchTapeIsAskedAboutOnceItIsKnown) {
  printEarly(250);
  EXPECT_EQ(question(), nullptr);
  composer().letGo();
  ASSERT_TRUE(waitUntil([this] { return question() != nullptr; }));
  EXPECT_TRUE(question()->informativeText().startsWith(QStringLiteral("500 labels")))
      << question()->informativeText().toStdString();
  EXPECT_TRUE(server().submissions().empty());
}

TEST_F(WaitingPrintTest, NothingCanBeChangedMeanwhile) {
  printEarly(5);
  EXPECT_FALSE(box("LxHalfCut")->isEnabled());
  composer().letGo();
  EXPECT_TRUE(waitForPrinted());
  EXPECT_TRUE(box("LxHalfCut")->isEnabled());
}

TEST_F(WaitingPrintTest, CancelEndsTheWait) {
  printEarly(5);
  waitForClicks();
  click(buttonWithText<QPushButton>("Cancel &job"));
  EXPECT_TRUE(printButton()->isVisible());
  composer().letGo();
  EXPECT_TRUE(waitUntil([this] { return printButton()->text().contains(QStringLiteral("10")); }));
  EXPECT_TRUE(server().submissions().empty());
}

TEST_F(WaitingPrintTest, EscapeEndsTheWaitAndNotTheDialog) {
  printEarly(5);
  press(&dialog(), Qt::Key_Escape);
  EXPECT_TRUE(printButton()->isVisible());
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(WaitingPrintTest, WhatCannotBeComposedEndsTheWait) {
  printEarly(5);
  composer().fail("labels.pdf: page 3 is damaged");
  composer().letGo();
  EXPECT_TRUE(waitUntil([this] { return printButton()->isVisible(); }));
  EXPECT_TRUE(shows(QStringLiteral("page 3 is damaged")));
  EXPECT_TRUE(server().submissions().empty());
}

}  // namespace
}  // namespace cutline
