// A printer that somebody sets up anew while the dialog is open.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

constexpr int kLongerThanALook = 1500;  // at the printer's state

class SetUpAnewTest : public DialogTest {
 protected:
  void open() {
    openQueue(samplePpd("tape-a"));
    server().setUpAnew("tape", samplePpd("tape-a"), 100);
    click(box("LxHalfCut"));
    ASSERT_TRUE(model().setPaper("W24H30"));
    dialog().startWatching();
    QTest::qWait(kLongerThanALook);
  }
  // The same driver without the paper in use.
  std::string lessPaper() const {
    QFile ppd(QString::fromStdString(samplePpd("tape-a")));
    QFile less(mFolder.filePath(QStringLiteral("less.ppd")));
    if (!ppd.open(QIODevice::ReadOnly) || !less.open(QIODevice::WriteOnly)) return {};
    for (QByteArray line = ppd.readLine(); !line.isEmpty(); line = ppd.readLine())
      if (!line.contains("W24H30")) less.write(line);
    return less.fileName().toStdString();
  }

  QTemporaryDir mFolder;
};

TEST_F(SetUpAnewTest, ItIsShownAnewAndWhatItLacksIsNamed) {
  open();
  server().setUpAnew("tape", lessPaper(), 200);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no longer has: ")); }));
  EXPECT_TRUE(shows(QStringLiteral("Tape 24 mm, label 30 mm")));
  EXPECT_EQ(named<QComboBox>("Paper")->findData(QStringLiteral("W24H30")), -1);
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
  EXPECT_NE(sent()["PageSize"], "W24H30");
}

// The boxes of the panel go with the old driver, also the one that the keyboard was at.
TEST_F(SetUpAnewTest, ReturnStillPrints) {
  open();
  box("LxHalfCut")->setFocus();
  server().setUpAnew("tape", samplePpd("roll"), 200);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no longer has: ")); }));
  EXPECT_EQ(dialog().focusWidget(), named<QWidget>("Copies"));
  EXPECT_TRUE(printButton()->isDefault());
}

TEST_F(SetUpAnewTest, TheSameDriverIsNoNews) {
  open();
  server().setUpAnew("tape", samplePpd("tape-a"), 200);
  QTest::qWait(kLongerThanALook);
  EXPECT_FALSE(shows(QStringLiteral("set up anew")));
  click(printButton());
  EXPECT_TRUE(waitForPrinted());
}

// Before the dialog has looked at the printer again.
TEST_F(SetUpAnewTest, WhatWasChosenForTheOldDriverIsNotSent) {
  open();
  server().setUpAnew("tape", lessPaper(), 200);
  click(printButton());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("set up anew")); }));
  EXPECT_TRUE(server().submissions().empty());
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no longer has: ")); }));
  waitForClicks();
  click(printButton());
  EXPECT_TRUE(waitForPrinted());
  EXPECT_FALSE(shows(QStringLiteral("no longer has: ")));
}

TEST_F(SetUpAnewTest, AnOpenListIsNotTakenFromUnderTheHand) {
  open();
  named<QComboBox>("Paper")->showPopup();
  server().setUpAnew("tape", lessPaper(), 200);
  QTest::qWait(kLongerThanALook);
  EXPECT_FALSE(shows(QStringLiteral("set up anew")));
  named<QComboBox>("Paper")->hidePopup();
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no longer has: ")); }));
}

TEST_F(SetUpAnewTest, AJobThatPrintsIsWaitedFor) {
  open();
  server().setStatuses({jobStatus(JobState::processing, "Printing label 7")});
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Printing label 7")); }));
  server().setUpAnew("tape", lessPaper(), 200);
  QTest::qWait(kLongerThanALook);
  EXPECT_FALSE(shows(QStringLiteral("set up anew")));
  server().setStatuses({jobStatus(JobState::completed)});
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no longer has: ")); }));
}

}  // namespace
}  // namespace cutline
