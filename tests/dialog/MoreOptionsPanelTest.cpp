#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <map>
#include <set>

#include "host/dialog/MoreOptionsPanel.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

std::set<std::string> keywordsShown(const QWidget& panel) {
  std::set<std::string> keywords;
  for (const QWidget* control : panel.findChildren<QWidget*>()) {
    if (!qobject_cast<const QComboBox*>(control) && !qobject_cast<const QCheckBox*>(control)) {
      continue;
    }
    keywords.insert(control->objectName().toStdString());
  }
  return keywords;
}

PpdOption option(const std::string& keyword, std::vector<OptionChoice> choices) {
  return {keyword, "Text of " + keyword, "", std::move(choices)};
}

MoreOptionsPanel::Groups group(std::vector<PpdOption> options) {
  return [groups = std::vector<OptionGroup>{{"Group", "Group", std::move(options)}}] {
    return groups;
  };
}

using Marks = std::map<std::string, std::string>;

MoreOptionsPanel::MarkOf markIn(const Marks& marks) {
  return [&marks](const std::string& keyword) {
    const auto mark = marks.find(keyword);
    return mark == marks.end() ? std::string() : mark->second;
  };
}

class MoreOptionsPanelTest : public DialogTest {
 protected:
  std::set<std::string> keywordsOnceOpened() {
    click(buttonWithText<QPushButton>("&More printer options"));
    return keywordsShown(*dialog().findChild<MoreOptionsPanel*>());
  }
};

TEST_F(MoreOptionsPanelTest, ListsExactlyWhatNoPanelTakesCareOf) {
  openQueue(samplePpd("tape-a"));
  const std::set<std::string> expected = {"ColorModel", "Resolution", "PrintDensity",
                                          "PrintSpeed", "Halftone",   "TapeMaterial"};
  EXPECT_EQ(keywordsOnceOpened(), expected);
}

TEST_F(MoreOptionsPanelTest, WithoutAPanelEveryOptionButPaperIsListed) {
  openQueue(oddPpd("without-cut-options"));
  const std::set<std::string> expected = {"ColorModel", "Resolution", "PrintDensity", "PrintSpeed",
                                          "Halftone"};
  EXPECT_EQ(keywordsOnceOpened(), expected);
}

const std::vector<OptionChoice> kEdges = {{"Long", "Long"}, {"Short", "Short"}};

TEST(MoreOptionsControlsTest, ASwitchBecomesACheckBoxInEitherOrder) {
  const Marks marks = {{"First", "True"}, {"Second", "OFF"}};
  MoreOptionsPanel panel(markIn(marks));
  panel.setGroups(group({option("First", {{"False", "No"}, {"True", "Yes"}}),
                         option("Second", {{"ON", "On"}, {"OFF", "Off"}})}));
  auto* first = panel.findChild<QCheckBox*>(QStringLiteral("First"));
  auto* second = panel.findChild<QCheckBox*>(QStringLiteral("Second"));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_TRUE(first->isChecked());
  EXPECT_FALSE(second->isChecked());
}

TEST(MoreOptionsControlsTest, WhatIsHiddenHasNoControlsUntilItIsShownWithTheLastMarks) {
  Marks marks = {{"Edge", "Long"}};
  MoreOptionsPanel panel(markIn(marks));
  panel.hide();
  panel.setGroups(group({option("Edge", kEdges)}));
  marks["Edge"] = "Short";
  panel.showMarks();
  EXPECT_EQ(panel.findChild<QComboBox*>(), nullptr);
  panel.show();
  ASSERT_NE(panel.findChild<QComboBox*>(), nullptr);
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentText(), QStringLiteral("Short"));
  panel.hide();
  panel.setGroups({});
  EXPECT_EQ(panel.findChild<QComboBox*>(), nullptr);
}

// A driver has hundreds of options, and neither the opening nor a click elsewhere asks for them.
TEST(MoreOptionsControlsTest, WhatIsHiddenAsksForNothing) {
  int asked = 0, listed = 0;
  MoreOptionsPanel panel([&asked](const std::string&) { return ++asked, std::string(); });
  panel.hide();
  panel.setGroups(
      [&listed, groups = group({option("Edge", kEdges)})] { return ++listed, groups(); });
  panel.showMarks();
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(listed, 0);
  panel.show();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(listed, 1);
}

TEST(MoreOptionsControlsTest, ReportsTheChoicesOwnKeyword) {
  const Marks marks = {{"Second", "OFF"}};
  MoreOptionsPanel panel(markIn(marks));
  panel.setGroups(group({option("Second", {{"ON", "On"}, {"OFF", "Off"}})}));
  QString chosen;
  QObject::connect(&panel, &MoreOptionsPanel::optionChosen,
                   [&](const QString& keyword, const QString& choice) {
                     chosen = keyword + QLatin1Char('=') + choice;
                   });
  panel.findChild<QCheckBox*>(QStringLiteral("Second"))->click();
  EXPECT_EQ(chosen, QStringLiteral("Second=ON"));
}

TEST(MoreOptionsControlsTest, TwoChoicesThatAreNoSwitchStayAList) {
  const Marks marks = {{"Edge", "Short"}};
  MoreOptionsPanel panel(markIn(marks));
  panel.setGroups(group({option("Edge", kEdges)}));
  auto* edge = panel.findChild<QComboBox*>(QStringLiteral("Edge"));
  ASSERT_NE(edge, nullptr);
  EXPECT_EQ(edge->currentText(), QStringLiteral("Short"));
}

TEST(MoreOptionsControlsTest, NewMarksMoveTheControlsWithoutAReport) {
  Marks marks = {{"Edge", "Short"}};
  MoreOptionsPanel panel(markIn(marks));
  panel.setGroups(group({option("Edge", kEdges)}));
  bool isReported = false;
  QObject::connect(&panel, &MoreOptionsPanel::optionChosen, [&] { isReported = true; });
  marks["Edge"] = "Long";
  panel.showMarks();
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentText(), QStringLiteral("Long"));
  EXPECT_FALSE(isReported);
}

TEST(MoreOptionsControlsTest, AnUnmarkedOptionShowsNoChoice) {
  const Marks marks;
  MoreOptionsPanel panel(markIn(marks));
  panel.setGroups(group({option("Edge", {{"Long", "Long"}, {"Wide", "Wide"}})}));
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentIndex(), -1);
}

TEST(MoreOptionsControlsTest, AnAmpersandInAPpdTextIsNoMnemonic) {
  const Marks marks = {{"Odd", "True"}};
  MoreOptionsPanel panel(markIn(marks));
  PpdOption odd = option("Odd", {{"False", "No"}, {"True", "Yes"}});
  odd.text = "Cut & Go";
  panel.setGroups(group({odd}));
  EXPECT_EQ(panel.findChild<QCheckBox*>()->text(), QStringLiteral("Cut && Go"));
  EXPECT_EQ(panel.findChild<QCheckBox*>()->accessibleName(), QStringLiteral("Cut & Go"));
}

}  // namespace

}  // namespace cutline
