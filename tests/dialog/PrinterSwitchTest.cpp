// Other printers, their state, and presets.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "host/dialog/PresetBar.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

class PrinterSwitchTest : public DialogTest {
 protected:
  void openWithRoll(const AskedSettings& asked = {}) {
    server().addPrinter("roll", samplePpd("roll"));
    server().addPrinter("other", samplePpd("tape-b"));
    openQueue(samplePpd("tape-a"), asked);
    dialog().startWatching();
    ASSERT_TRUE(waitUntil([this] { return printers()->count() == 3; }));
  }
  QComboBox* printers() { return named<QComboBox>("Printer"); }
  QComboBox* presets() { return named<QComboBox>("Preset"); }
  // A user's choice in a combo box, with the arrow keys.
  void choose(QComboBox* combo, const char* data) {
    const int index = combo->findData(QString::fromLatin1(data));
    ASSERT_GE(index, 0) << data;
    combo->setFocus();
    press(combo, Qt::Key_Home);
    for (int i = 0; i < index; ++i) press(combo, Qt::Key_Down);
  }
  bool isOpen(const char* name) { return model().destination().name.printer == name; }
};

TEST_F(PrinterSwitchTest, AnotherPrinterBringsItsOwnPanelAndPapers) {
  openWithRoll();
  choose(printers(), "roll");
  ASSERT_TRUE(waitUntil([this] { return isOpen("roll"); }));
  EXPECT_NE(box("LxAutoTapeCut"), nullptr);
  EXPECT_GE(named<QComboBox>("Paper")->findData(QStringLiteral("W62H29")), 0);
  EXPECT_LT(named<QComboBox>("Paper")->findData(QStringLiteral("W24H50")), 0);
}

TEST_F(PrinterSwitchTest, TheLateAnswerOfAnAbandonedSwitchIsDropped) {
  openWithRoll();
  server().holdOpening("roll");
  choose(printers(), "roll");
  choose(printers(), "other");
  ASSERT_TRUE(waitUntil([this] { return isOpen("other"); }));
  server().releaseOpening("roll");
  QTest::qWait(100);
  EXPECT_TRUE(isOpen("other"));
}

TEST_F(PrinterSwitchTest, NothingIsPrintedWhileASwitchIsOnItsWay) {
  openWithRoll();
  server().holdOpening("roll");
  choose(printers(), "roll");
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_TRUE(shows(QStringLiteral("Opening roll")));
  server().releaseOpening("roll");
  EXPECT_TRUE(waitUntil([this] { return isOpen("roll"); }));
  EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(PrinterSwitchTest, APrinterThatCannotBeOpenedLeavesTheOldOne) {
  server().addPrinter("broken", "/nowhere/at-all.ppd");
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return printers()->count() == 2; }));
  choose(printers(), "broken");
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("at-all.ppd")); }));
  EXPECT_TRUE(isOpen("tape"));
  EXPECT_EQ(printers()->currentData().toString(), QStringLiteral("tape"));
  EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(PrinterSwitchTest, AStoppedPrinterIsNamedBeforePrinting) {
  server().addPrinter("roll", samplePpd("roll"));
  server().setState("roll", PrinterState::stopped, true);
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return printers()->count() == 2; }));
  choose(printers(), "roll");
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("roll does not print now")); }));
  EXPECT_TRUE(shows(QStringLiteral("Paused")));
}

TEST_F(PrinterSwitchTest, APrinterThatAcceptsNoJobsIsNamedBeforePrinting) {
  server().addPrinter("roll", samplePpd("roll"));
  server().setState("roll", PrinterState::idle, false);
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return printers()->count() == 2; }));
  choose(printers(), "roll");
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("roll does not accept jobs")); }));
}

TEST_F(PrinterSwitchTest, AChosenPresetIsLaidOverTheDefaults) {
  server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return presets()->count() == 2; }));
  choose(presets(), "halfcut");
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
  press(presets(), Qt::Key_Home);
  EXPECT_EQ(sent()["LxHalfCut"], "OFF");
}

TEST_F(PrinterSwitchTest, InstancesAreNoPrintersOfTheirOwn) {
  server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return presets()->count() == 2; }));
  EXPECT_EQ(printers()->count(), 1);
}

TEST_F(PrinterSwitchTest, ASavedPresetIsAnInstanceWithEveryCutOption) {
  openQueue(samplePpd("tape-a"));
  click(box("LxHalfCut"));
  click(named<QPushButton>("Save these settings as a preset"));
  auto* ask = dialog().findChild<PresetNameDialog*>();
  ASSERT_NE(ask, nullptr);
  auto* name = ask->findChild<QLineEdit*>();
  QTest::keyClicks(name, "shipping");
  QTest::keyClick(name, Qt::Key_Return);
  ASSERT_TRUE(waitUntil([this] { return presets()->count() == 2; }));
  EXPECT_EQ(presets()->currentData().toString(), QStringLiteral("shipping"));
  const DestinationName saved{"tape", "shipping"};
  ASSERT_EQ(server().savedInstances(), std::vector<DestinationName>{saved});
  int cutOptions = 0;
  for (const auto& [keyword, value] : server().savedOptions(saved)) {
    cutOptions += keyword.starts_with("Lx") ? 1 : 0;
    EXPECT_TRUE(keyword != "LxHalfCut" || value == "ON");
  }
  EXPECT_EQ(cutOptions, 9);
}

// Two instances that differ in capitals alone are one to libcups.
TEST_F(PrinterSwitchTest, APresetOfTheSameLettersIsReplacedUnderItsOwnName) {
  server().addInstance("tape", "Shelf", {{"LxHalfCut", "ON"}});
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return presets()->count() == 2; }));
  click(named<QPushButton>("Save these settings as a preset"));
  auto* name = dialog().findChild<PresetNameDialog*>()->findChild<QLineEdit*>();
  QTest::keyClicks(name, "shelf");
  EXPECT_TRUE(shows(QStringLiteral("Replaces the preset \"Shelf\": capitals do not count.")));
  QTest::keyClick(name, Qt::Key_Return);
  const std::vector<DestinationName> saved{{"tape", "Shelf"}};
  EXPECT_TRUE(waitUntil([&] { return server().savedInstances() == saved; }));
  EXPECT_EQ(presets()->count(), 2);
}

TEST_F(PrinterSwitchTest, APresetThatCannotBeSavedIsNamed) {
  openQueue(samplePpd("tape-a"));
  server().refusePresets("lpoptions: no write permission");
  click(named<QPushButton>("Save these settings as a preset"));
  auto* name = dialog().findChild<PresetNameDialog*>()->findChild<QLineEdit*>();
  QTest::keyClicks(name, "shipping");
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_TRUE(waitUntil([this] { return shows(QStringLiteral("no write permission")); }));
  EXPECT_EQ(presets()->count(), 1);
}

TEST_F(PrinterSwitchTest, APresetIsDeletedAfterAQuestion) {
  server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
  openQueue(samplePpd("tape-a"));
  dialog().startWatching();
  ASSERT_TRUE(waitUntil([this] { return presets()->count() == 2; }));
  choose(presets(), "halfcut");
  click(named<QPushButton>("Delete the chosen preset"));
  auto* question = dialog().findChild<QMessageBox*>();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(question->defaultButton(), question->button(QMessageBox::Cancel));
  EXPECT_TRUE(server().removedInstances().empty());
  for (QAbstractButton* button : question->buttons()) {
    if (question->buttonRole(button) == QMessageBox::DestructiveRole) button->click();
  }
  EXPECT_TRUE(waitUntil([this] { return presets()->count() == 1; }));
  EXPECT_EQ(server().removedInstances(), (std::vector<DestinationName>{{"tape", "halfcut"}}));
}

TEST(PresetNameTest, NamesThatThePrintSystemCannotKeepAreRefused) {
  for (const char* name : {"", "two words", "a/b", "tab\tbed", "#1", "quo\"te"}) {
    EXPECT_FALSE(problemOfPresetName(QString::fromUtf8(name)).isEmpty()) << name;
  }
  EXPECT_FALSE(problemOfPresetName(QString(200, QLatin1Char('a'))).isEmpty());
}

TEST(PresetNameTest, PlainNamesAreTaken) {
  for (const char* name : {"halfcut", "half-cut_2", "\u00e4tiketten"}) {
    EXPECT_TRUE(problemOfPresetName(QString::fromUtf8(name)).isEmpty()) << name;
  }
}

}  // namespace

}  // namespace cutline
