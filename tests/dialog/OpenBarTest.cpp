// Documents are opened anew at a click.
#include <gtest/gtest.h>

#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>

#include "host/dialog/OpenBar.h"
#include "qt/QtText.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

std::vector<std::string> entriesOf(const OpenBar& bar) {
  std::vector<std::string> titles;
  for (const QAction* entry : bar.findChild<QToolButton*>()->menu()->actions())
    titles.push_back(toUtf8(entry->text()));
  return titles;
}

TEST(OpenBarTest, WithoutDocumentsThereIsNothingToClick) {
  OpenBar bar;
  bar.setRecent({});
  EXPECT_TRUE(bar.findChild<QToolButton*>()->isHidden());
  bar.setRecent({"/a/labels.pdf"});
  EXPECT_FALSE(bar.findChild<QToolButton*>()->isHidden());
}

TEST(OpenBarTest, NamesakesSayTheirFolder) {
  OpenBar bar;
  bar.setRecent({"/a/labels.pdf", "/b/labels.pdf", "/a/shelf.png"});
  EXPECT_EQ(entriesOf(bar),
            (std::vector<std::string>{"/a/labels.pdf", "/b/labels.pdf", "shelf.png"}));
}

TEST(OpenBarTest, AnAmpersandIsShown) {
  OpenBar bar;
  bar.setRecent({"/a/nuts & bolts.pdf"});
  EXPECT_EQ(entriesOf(bar), std::vector<std::string>{"nuts && bolts.pdf"});
}

TEST(OpenBarTest, ANewerListTakesTheOldersPlace) {
  OpenBar bar;
  bar.setRecent({"/a/labels.pdf"});
  bar.setRecent({"/a/shelf.png", "/a/labels.pdf"});
  EXPECT_EQ(entriesOf(bar), (std::vector<std::string>{"shelf.png", "labels.pdf"}));
}

class RecentTest : public DialogTest {};

TEST_F(RecentTest, AnEntryIsOpenedInThePlaceOfTheDocuments) {
  openQueue(samplePpd("tape-a"));
  dialog().setRecentDocuments({"/nowhere/shelf.png", "/nowhere/labels.pdf"});
  dialog().findChild<OpenBar*>()->findChild<QToolButton*>()->menu()->actions().front()->trigger();
  EXPECT_TRUE(waitUntil(
      [this] { return composer().paths() == std::vector<std::string>{"/nowhere/shelf.png"}; }));
  EXPECT_EQ(dialog().documents(), std::vector<std::string>{"/nowhere/shelf.png"});
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Print shelf.png"));
}

TEST_F(RecentTest, WhatWasPrintedIsTold) {
  openQueue(samplePpd("tape-a"));
  const QSignalSpy out(&dialog(), &PrintDialog::jobWentOut);
  click(printButton());
  ASSERT_TRUE(waitForPrinted());
  EXPECT_EQ(out.count(), 1);
}

}  // namespace
}  // namespace cutline
