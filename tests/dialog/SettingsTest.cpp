// A user's doings in the dialog reach the job, and what is shown follows.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NoticeView.h"
#include "tests/dialog/DialogTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {

namespace {

void chooseByText(QComboBox* combo, const QString& text) {
  ASSERT_NE(combo, nullptr);
  const int index = combo->findText(text);
  ASSERT_GE(index, 0) << text.toStdString();
  combo->setFocus();
  const int step = index > combo->currentIndex() ? Qt::Key_Down : Qt::Key_Up;
  while (combo->currentIndex() != index) QTest::keyClick(combo, static_cast<Qt::Key>(step));
}

// One of the rows tells assistive technology the line as an alert.
bool isSpokenAsAlert(const NoticeView& notices, const QString& line) {
  const auto rows = notices.findChildren<QWidget*>();
  return std::any_of(rows.begin(), rows.end(), [&](QWidget* row) {
    const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(row);
    return spoken->role() == QAccessible::AlertMessage && spoken->text(QAccessible::Name) == line;
  });
}

std::string valueIn(const OptionList& options, const std::string& keyword) {
  for (const auto& [name, value] : options) {
    if (name == keyword) return value;
  }
  return "(not sent)";
}

class SettingsTest : public DialogTest {};

TEST_F(SettingsTest, AClickOnHalfCutReachesTheJob) {
  openQueue(samplePpd("tape-a"));
  ASSERT_EQ(sent()["LxHalfCut"], "OFF");
  click(box("LxHalfCut"));
  EXPECT_EQ(sent()["LxHalfCut"], "ON");
}

TEST_F(SettingsTest, TheSummaryFollowsAClick) {
  openQueue(samplePpd("tape-b"));
  click(named<QPushButton>("Summary"));
  const QStringList before = shownTexts();
  click(box("LxHalfCut"));
  EXPECT_EQ(shownTexts().count(QStringLiteral("Yes")), before.count(QStringLiteral("Yes")) + 1);
}

TEST_F(SettingsTest, EveryBoxOfThePanelTakesAClick) {
  openQueue(samplePpd("tape-b"));
  for (const char* keyword :
       {"LxHalfCut", "LxChainPrint", "LxMirror", "LxRemoveBlkSpace", "LxCutAtEnd"}) {
    const std::string before = sent()[keyword];
    click(box(keyword));
    EXPECT_NE(sent()[keyword], before) << keyword;
  }
}

TEST_F(SettingsTest, AnotherPaperIsSentAndShown) {
  openQueue(samplePpd("tape-a"));
  chooseByText(named<QComboBox>("Paper"), QStringLiteral("Tape 24 mm, label 100 mm"));
  EXPECT_EQ(sent()["PageSize"], "W24H100");
  EXPECT_TRUE(shows(QStringLiteral("Label 1 of 3 \u00b7 Tape 24 mm, label 100 mm")));
}

TEST_F(SettingsTest, CopiesAreSent) {
  openQueue(samplePpd("tape-a"));
  auto* copies = named<QSpinBox>("Copies");
  copies->setFocus();
  copies->selectAll();
  QTest::keyClicks(copies, "12");
  EXPECT_EQ(sent()["copies"], "12");
}

TEST_F(SettingsTest, TypedPagesAreSentAsTheyAreTyped) {
  openQueue(samplePpd("tape-a"));
  auto* pages = named<QLineEdit>("Pages");
  pages->setFocus();
  QTest::keyClicks(pages, "1-2, 3");
  EXPECT_EQ(model().pageRanges(), "1-2,3");
}

TEST_F(SettingsTest, AWrongPageRangeIsNamedWhenTheFieldIsLeft) {
  openQueue(samplePpd("tape-a"));
  auto* pages = named<QLineEdit>("Pages");
  pages->setFocus();
  QTest::keyClicks(pages, "3-1");
  EXPECT_FALSE(shows(QStringLiteral("3-1")));
  press(pages, Qt::Key_Tab);
  EXPECT_TRUE(shows(QStringLiteral("Page range \"3-1\"")));
  EXPECT_TRUE(pages->accessibleDescription().contains(QStringLiteral("3-1")));
}

TEST_F(SettingsTest, AWrongPageRangeIsNotPrinted) {
  openQueue(samplePpd("tape-a"));
  auto* pages = named<QLineEdit>("Pages");
  pages->setFocus();
  QTest::keyClicks(pages, "all of them");
  click(printButton());
  QTest::qWait(50);
  EXPECT_TRUE(server().submissions().empty());
  EXPECT_TRUE(pages->hasFocus());
}

TEST_F(SettingsTest, PagesThatTheDocumentLacksAreNotPrinted) {
  openQueue(samplePpd("tape-a"));
  ASSERT_TRUE(waitUntil([this] { return shows(QStringLiteral("Label 1 of 3")); }));
  auto* pages = named<QLineEdit>("Pages");
  pages->setFocus();
  QTest::keyClicks(pages, "2-4");
  click(printButton());
  EXPECT_TRUE(shows(QStringLiteral("the document has 3 pages")));
  EXPECT_TRUE(server().submissions().empty());
  pages->selectAll();
  QTest::keyClicks(pages, "2-3");
  EXPECT_FALSE(shows(QStringLiteral("Page range")));
}

TEST_F(SettingsTest, ACorrectedPageRangeLosesItsMessage) {
  openQueue(samplePpd("tape-a"));
  auto* pages = named<QLineEdit>("Pages");
  pages->setFocus();
  QTest::keyClicks(pages, "0");
  press(pages, Qt::Key_Tab);
  pages->setFocus();
  pages->selectAll();
  QTest::keyClicks(pages, "2");
  EXPECT_FALSE(shows(QStringLiteral("Page range")));
  EXPECT_EQ(model().pageRanges(), "2");
}

TEST_F(SettingsTest, WhatARuleChangesIsNamedBesideThePanel) {
  openQueue(samplePpd("tape-b"));
  click(box("LxHalfCut"));
  ASSERT_TRUE(model().deviations().empty());
  click(box("LxSpecialTape"));
  ASSERT_FALSE(model().deviations().empty());
  for (const Deviation& deviation : model().deviations()) {
    EXPECT_TRUE(shows(translated(deviation.sentence))) << deviation.sentence.english();
  }
}

// Heat-shrink tube must not be cut automatically, but the user may insist.
TEST_F(SettingsTest, WhatIsSentAgainstARuleIsNamedAndPrintedAllTheSame) {
  openQueue(samplePpd("tape-a"));
  ASSERT_TRUE(model().setPaper("HS24H50"));
  const QString words = QStringLiteral("although the paper");
  ASSERT_FALSE(shows(words));
  clickPastAlert(box("LxAutoTapeCut"));
  ASSERT_TRUE(waitUntil([&] { return shows(words); }));
  const auto* notices = dialog().findChild<NoticeView*>();
  const QStringList lines = notices->notices(NoticeTopic::deviations);
  ASSERT_EQ(lines.filter(words).size(), 1);
  EXPECT_TRUE(isSpokenAsAlert(*notices, lines.filter(words).front()));
  click(printButton());
  ASSERT_TRUE(waitUntil([this] { return !server().submissions().empty(); }));
  EXPECT_EQ(valueIn(server().submissions().front().options, "LxAutoTapeCut"), "ON");
}

TEST_F(SettingsTest, WhatDoesNothingIsNamedAsLongAsItDoesNothing) {
  openQueue(samplePpd("tape-a"));
  const QString words = QStringLiteral("nothing is cut while special tape is on");
  click(box("LxSpecialTape"));
  EXPECT_TRUE(shows(words));
  click(box("LxCutAtEnd"));
  EXPECT_FALSE(shows(words));
}

TEST_F(SettingsTest, ConflictsAreNamedAndSortedOutAtAClick) {
  openQueue(samplePpd("tape-a"));
  click(box("LxHalfCut"));
  ASSERT_TRUE(model().setOption("TapeMaterial", "Fabric"));
  ASSERT_EQ(model().conflicts().size(), 1u);
  EXPECT_TRUE(shows(translated(model().conflicts().front())));
  click(buttonWithText<QPushButton>("Chan&ge the others"));
  EXPECT_TRUE(model().conflicts().empty());
  EXPECT_EQ(sent()["LxHalfCut"], "OFF");
}

// A driver whose defaults exclude each other must not fill the window with it.
TEST_F(SettingsTest, OfManyConflictsAFewAreNamedAndTheOthersCounted) {
  constexpr int kConflicts = 12;
  std::ifstream sample(samplePpd("tape-a"));
  std::string ppd{std::istreambuf_iterator<char>(sample), {}};
  for (int at = 0; at <= kConflicts; ++at) {
    const std::string name = "*Other" + std::to_string(at);
    ppd += "*OpenUI " + name + ": PickOne\n*Default" + name.substr(1) + ": A\n" + name +
           " A: \"\"\n" + name + " B: \"\"\n*CloseUI: " + name + "\n";
    if (at > 0) ppd += "*UIConstraints: *Other0 A " + name + " A\n";
  }
  const test::TemporaryFolder folder;
  openQueue(folder.write("many.ppd", ppd));
  ASSERT_EQ(model().conflicts().size(), std::size_t{kConflicts});
  EXPECT_TRUE(shows(translated(model().conflicts()[4])));
  EXPECT_FALSE(shows(translated(model().conflicts()[5])));
  EXPECT_TRUE(shows("And 7 more."));
  EXPECT_LT(dialog().minimumSizeHint().height(), 780);
  click(buttonWithText<QPushButton>("Chan&ge the others"));
  EXPECT_TRUE(model().conflicts().empty());
  EXPECT_FALSE(shows("And 7 more."));
}

TEST_F(SettingsTest, MoreOptionsOpenAtAClick) {
  openQueue(samplePpd("tape-a"));
  auto* more = buttonWithText<QPushButton>("&More printer options");
  const auto isOpen = [this] {
    const auto* darkness = dialog().findChild<QWidget*>(QStringLiteral("PrintDensity"));
    return darkness != nullptr && darkness->isVisible();
  };
  EXPECT_FALSE(isOpen());
  click(more);
  EXPECT_TRUE(isOpen());
  click(more);
  EXPECT_FALSE(isOpen());
}

TEST_F(SettingsTest, AChoiceAmongMoreOptionsIsSent) {
  openQueue(samplePpd("tape-a"));
  click(buttonWithText<QPushButton>("&More printer options"));
  auto* speed = dialog().findChild<QComboBox*>(QStringLiteral("PrintSpeed"));
  ASSERT_NE(speed, nullptr);
  speed->setFocus();
  const QString before = speed->currentData().toString();
  press(speed, Qt::Key_Down);
  press(speed, Qt::Key_Up);
  press(speed, speed->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
  EXPECT_NE(speed->currentData().toString(), before);
  EXPECT_EQ(sent()["PrintSpeed"], speed->currentData().toString().toStdString());
}

TEST_F(SettingsTest, APrinterWithoutPanelSaysWhereItsOptionsAre) {
  openQueue(oddPpd("without-cut-options"));
  EXPECT_TRUE(shows(QStringLiteral("no panel of its own")));
  EXPECT_TRUE(buttonWithText<QPushButton>("&More printer options")->isEnabled());
}

TEST_F(SettingsTest, WhatWasAskedForIsShown) {
  AskedSettings asked;
  asked.options = {{"LxHalfCut", "ON"}, {"PageSize", "W12H50"}};
  asked.copies = 3;
  asked.pageRanges = "2-3";
  openQueue(samplePpd("tape-a"), asked);
  EXPECT_TRUE(qobject_cast<QCheckBox*>(box("LxHalfCut"))->isChecked());
  EXPECT_EQ(named<QSpinBox>("Copies")->value(), 3);
  EXPECT_EQ(named<QLineEdit>("Pages")->text(), QStringLiteral("2-3"));
  EXPECT_EQ(named<QComboBox>("Paper")->currentData().toString(), QStringLiteral("W12H50"));
}

}  // namespace

}  // namespace cutline
