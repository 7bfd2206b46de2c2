#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
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

GeneratedOption option(const std::string& keyword, std::vector<OptionChoice> choices,
                       const std::string& marked) {
  return {PpdOption{keyword, "Text of " + keyword, "", std::move(choices)}, marked};
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

TEST(MoreOptionsControlsTest, ASwitchBecomesACheckBoxInEitherOrder) {
  MoreOptionsPanel panel;
  panel.setGroups({{"Group",
                    {option("First", {{"False", "No"}, {"True", "Yes"}}, "True"),
                     option("Second", {{"ON", "On"}, {"OFF", "Off"}}, "OFF")}}});
  auto* first = panel.findChild<QCheckBox*>(QStringLiteral("First"));
  auto* second = panel.findChild<QCheckBox*>(QStringLiteral("Second"));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_TRUE(first->isChecked());
  EXPECT_FALSE(second->isChecked());
}

TEST(MoreOptionsControlsTest, WhatIsHiddenHasNoControlsUntilItIsShownWithTheLastMarks) {
  MoreOptionsPanel panel;
  panel.hide();
  const auto groups = [](const char* marked) {
    return std::vector<GeneratedGroup>{
        {"Group", {option("Edge", {{"Long", "Long"}, {"Short", "Short"}}, marked)}}};
  };
  panel.setGroups(groups("Long"));
  panel.setMarks(groups("Short"));
  EXPECT_EQ(panel.findChild<QComboBox*>(), nullptr);
  panel.show();
  ASSERT_NE(panel.findChild<QComboBox*>(), nullptr);
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentText(), QStringLiteral("Short"));
  panel.hide();
  panel.setGroups({});
  EXPECT_EQ(panel.findChild<QComboBox*>(), nullptr);
}

TEST(MoreOptionsControlsTest, ReportsTheChoicesOwnKeyword) {
  MoreOptionsPanel panel;
  panel.setGroups({{"Group", {option("Second", {{"ON", "On"}, {"OFF", "Off"}}, "OFF")}}});
  QString chosen;
  QObject::connect(&panel, &MoreOptionsPanel::optionChosen,
                   [&](const QString& keyword, const QString& choice) {
                     chosen = keyword + QLatin1Char('=') + choice;
                   });
  panel.findChild<QCheckBox*>(QStringLiteral("Second"))->click();
  EXPECT_EQ(chosen, QStringLiteral("Second=ON"));
}

TEST(MoreOptionsControlsTest, TwoChoicesThatAreNoSwitchStayAList) {
  MoreOptionsPanel panel;
  panel.setGroups({{"Group", {option("Edge", {{"Long", "Long"}, {"Short", "Short"}}, "Short")}}});
  auto* edge = panel.findChild<QComboBox*>(QStringLiteral("Edge"));
  ASSERT_NE(edge, nullptr);
  EXPECT_EQ(edge->currentText(), QStringLiteral("Short"));
}

TEST(MoreOptionsControlsTest, NewMarksMoveTheControlsWithoutAReport) {
  MoreOptionsPanel panel;
  const std::vector<OptionChoice> choices = {{"Long", "Long"}, {"Short", "Short"}};
  panel.setGroups({{"Group", {option("Edge", choices, "Short")}}});
  bool isReported = false;
  QObject::connect(&panel, &MoreOptionsPanel::optionChosen, [&] { isReported = true; });
  panel.setMarks({{"Group", {option("Edge", choices, "Long")}}});
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentText(), QStringLiteral("Long"));
  EXPECT_FALSE(isReported);
}

TEST(MoreOptionsControlsTest, AnUnmarkedOptionShowsNoChoice) {
  MoreOptionsPanel panel;
  panel.setGroups({{"Group", {option("Edge", {{"Long", "Long"}, {"Wide", "Wide"}}, "")}}});
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentIndex(), -1);
}

TEST(MoreOptionsControlsTest, AnAmpersandInAPpdTextIsNoMnemonic) {
  MoreOptionsPanel panel;
  GeneratedOption odd = option("Odd", {{"False", "No"}, {"True", "Yes"}}, "True");
  odd.option.text = "Cut & Go";
  panel.setGroups({{"Group", {odd}}});
  EXPECT_EQ(panel.findChild<QCheckBox*>()->text(), QStringLiteral("Cut && Go"));
  EXPECT_EQ(panel.findChild<QCheckBox*>()->accessibleName(), QStringLiteral("Cut & Go"));
}

}  // namespace

}  // namespace cutline
