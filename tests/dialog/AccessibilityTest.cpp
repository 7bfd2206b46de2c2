// The dialog as those have it who do not see it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRegularExpression>
#include <functional>

#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/StripView.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

QAccessibleInterface& spokenOf(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

bool isShown(const QAccessibleInterface& object) { return !object.state().invisible; }

// Every shown object below, from the top; what a hidden one holds is left out.
void forEachShown(QAccessibleInterface& object,
                  const std::function<void(QAccessibleInterface&)>& visit) {
  if (!isShown(object)) return;
  visit(object);
  for (int i = 0; i < object.childCount(); ++i) {
    if (QAccessibleInterface* const child = object.child(i)) forEachShown(*child, visit);
  }
}

std::string nameOf(const QAccessibleInterface& object) {
  return object.text(QAccessible::Name).toStdString();
}

// Names that are for programs: keys of string tables, titles of presets and pictures.
bool isForPrograms(const QString& name) {
  static const QRegularExpression pattern(
      QStringLiteral("RS_|OP_PANEL|(AHCM|EveryEndMirror|SPMR|CTMR)(On|Off)"));
  return pattern.match(name).hasMatch();
}

class AccessibilityTest : public DialogTest {
 protected:
  // The shown object of this name; its role tells apart those that share one.
  QAccessibleInterface* find(QAccessible::Role role, const std::string& name) {
    QAccessibleInterface* found = nullptr;
    forEachShown(spokenOf(&dialog()), [&](QAccessibleInterface& each) {
      if (each.role() == role && nameOf(each) == name) found = &each;
    });
    return found;
  }
  void openAll(const std::string& ppd) {
    openQueue(samplePpd(ppd));
    click(buttonWithText<QPushButton>("&More printer options"));
    click(named<QPushButton>("Summary"));
  }
};

class AccessibilityOfPrinters : public AccessibilityTest,
                                public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Each, AccessibilityOfPrinters, testing::Values("tape-a", "tape-b", "roll"),
                         [](const auto& info) {
                           const std::string file = info.param;
                           return file[0] == 'r' ? std::string("Roll")
                                                 : std::string("Tape") + file[5];
                         });

TEST_P(AccessibilityOfPrinters, WhatTakesTheKeyboardHasAName) {
  openAll(GetParam());
  int controls = 0;
  forEachShown(spokenOf(&dialog()), [&](QAccessibleInterface& each) {
    if (!each.state().focusable) return;
    ++controls;
    EXPECT_NE(nameOf(each), "") << "role " << each.role();
  });
  EXPECT_GT(controls, 20);
}

TEST_P(AccessibilityOfPrinters, NoNameIsForPrograms) {
  openAll(GetParam());
  forEachShown(spokenOf(&dialog()), [](QAccessibleInterface& each) {
    for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description})
      EXPECT_FALSE(isForPrograms(each.text(kind))) << each.text(kind).toStdString();
  });
}

// Not shown before it is opened, and the titles of its entries have been cleared.
TEST_P(AccessibilityOfPrinters, EveryEntryOfThePanelsPresetsHasWords) {
  openAll(GetParam());
  int presets = 0;
  for (QComboBox* list : dialog().findChildren<QComboBox*>()) {
    if (!list->accessibleName().startsWith(QStringLiteral("Cutting preset: "))) continue;
    QAccessibleInterface* const entries = spokenOf(list).child(0);
    ASSERT_EQ(entries->childCount(), list->count());
    for (presets = 0; presets < entries->childCount(); ++presets) {
      const QString words = entries->child(presets)->text(QAccessible::Name);
      EXPECT_FALSE(words.isEmpty());
      EXPECT_FALSE(isForPrograms(words)) << words.toStdString();
    }
  }
  EXPECT_GE(presets, 3);
}

struct ToldControl {
  QAccessible::Role role;
  const char* name;
};

constexpr ToldControl kControls[] = {
    {QAccessible::ComboBox, "Printer's own settings"},
    {QAccessible::Button, "Save these settings as a preset"},
    {QAccessible::SpinBox, "Copies"},
    {QAccessible::EditableText, "Pages"},
    {QAccessible::ComboBox, "Tape 24 mm, label 50 mm"},
    {QAccessible::Grouping, "Cut Options"},
    {QAccessible::CheckBox, "Cut automatically after every"},
    {QAccessible::EditableText, "Number of labels between cuts"},
    {QAccessible::SpinBox, "Change the number of labels between cuts"},
    {QAccessible::StaticText, "label(s)"},
    {QAccessible::CheckBox, "Half cut between labels"},
    {QAccessible::ComboBox, "Cutting preset: No marks, no chain"},
    {QAccessible::Graphic, "Auto cut on, no half cut, not mirrored"},
    {QAccessible::Grouping, "Summary"},
    {QAccessible::Graphic, "Preview of the labels"},
    {QAccessible::Button, "Previous label"},
    {QAccessible::Button, "Zoom in"},
    {QAccessible::Button, "Cancel"},
    {QAccessible::Button, "Print 3 labels"},
};

TEST_F(AccessibilityTest, EachControlIsWhatItIs) {
  openAll("tape-a");
  for (const ToldControl& control : kControls)
    EXPECT_NE(find(control.role, control.name), nullptr) << control.name;
}

TEST_F(AccessibilityTest, CaptionsLabelTheirFields) {
  openAll("tape-a");
  struct Row {
    QAccessible::Role role;
    const char* name;
    const char* caption;
  };
  for (const Row& row : {Row{QAccessible::SpinBox, "Copies", "Copies:"},
                         Row{QAccessible::EditableText, "Pages", "Pages:"},
                         Row{QAccessible::ComboBox, "Tape 24 mm, label 50 mm", "Paper:"},
                         Row{QAccessible::ComboBox, "Printer's own settings", "Preset:"}}) {
    QAccessibleInterface* const field = find(row.role, row.name);
    ASSERT_NE(field, nullptr) << row.name;
    const auto labels = field->relations(QAccessible::Label);
    ASSERT_FALSE(labels.isEmpty()) << row.name;
    EXPECT_EQ(nameOf(*labels.first().first), row.caption);
  }
}

TEST_F(AccessibilityTest, ThePanelsPictureFollowsItsBoxes) {
  openAll("tape-a");
  click(box("LxHalfCut"));
  EXPECT_NE(find(QAccessible::Graphic, "Auto cut on, half cut between labels, not mirrored"),
            nullptr);
  click(box("LxMirror"));
  EXPECT_NE(find(QAccessible::Graphic, "Auto cut on, half cut between labels, mirrored"), nullptr);
}

TEST_F(AccessibilityTest, TheSummaryIsReadAsOneText) {
  openAll("tape-a");
  const auto words = [this] {
    return find(QAccessible::Grouping, "Summary")->text(QAccessible::Description);
  };
  EXPECT_TRUE(words().contains(QStringLiteral("Half cut between labels: No\n")));
  click(box("LxHalfCut"));
  EXPECT_TRUE(words().contains(QStringLiteral("Half cut between labels: Yes\n")));
}

TEST_F(AccessibilityTest, ThePreviewSaysWhichLabelItShows) {
  openAll("tape-a");
  auto* strip = dialog().findChild<StripView*>();
  ASSERT_TRUE(waitUntil([&] { return strip->labelCount() == 3; }));
  const auto words = [&] { return spokenOf(strip).text(QAccessible::Description); };
  const QString sentence =
      QStringLiteral("3 labels, cut after each label: 3 pieces, 162 mm of tape\n");
  EXPECT_EQ(words(), sentence + QStringLiteral("Label 1 of 3 \u00b7 Tape 24 mm, label 50 mm"));
  press(strip, Qt::Key_PageDown);
  EXPECT_EQ(words(), sentence + QStringLiteral("Label 2 of 3 \u00b7 Tape 24 mm, label 50 mm"));
  click(box("LxHalfCut"));
  EXPECT_TRUE(words().startsWith(
      QStringLiteral("3 labels, cut at the end, half cut between: 1 piece, 162 mm of tape\n")))
      << words().toStdString();
  strip->setMessage(QStringLiteral("This document cannot be shown"));
  EXPECT_EQ(words(), QStringLiteral("This document cannot be shown"));
}

TEST_F(AccessibilityTest, EachNoticeIsAnAlert) {
  openAll("tape-a");
  auto* notices = dialog().findChild<NoticeView*>();
  notices->setNotices(NoticeTopic::failure, {QStringLiteral("It failed."), QStringLiteral("Why?")});
  for (const char* line : {"It failed.", "Why?"})
    EXPECT_NE(find(QAccessible::AlertMessage, line), nullptr) << line;
}

TEST_F(AccessibilityTest, TheJobsProgressIsAnAlertAndDescribesItsBar) {
  openQueue(samplePpd("tape-a"));
  server().setStatuses({jobStatus(JobState::processing, "Printing label 1")});
  click(printButton());
  const QAccessibleInterface* bar = nullptr;
  ASSERT_TRUE(waitUntil([&] {
    bar = find(QAccessible::ProgressBar, "Progress of the job");
    return bar && bar->text(QAccessible::Description).contains(QStringLiteral("Printing label 1"));
  }));
  const std::string words = bar->text(QAccessible::Description).toStdString();
  EXPECT_NE(find(QAccessible::AlertMessage, words), nullptr) << words;
  EXPECT_NE(find(QAccessible::Button, "Cancel job"), nullptr);
  waitForClicks();
  click(buttonWithText<QPushButton>("Close and &let it print"));
  EXPECT_TRUE(waitForClose());
}

TEST_F(AccessibilityTest, AGreyedBoxSaysSo) {
  openAll("tape-a");
  const QAccessibleInterface& half = spokenOf(box("LxHalfCut"));
  EXPECT_FALSE(half.state().disabled);
  click(box("LxSpecialTape"));
  EXPECT_TRUE(half.state().disabled);
}

// Further options of the printer are ticked as by a click, too.
TEST_F(AccessibilityTest, AssistiveTechnologyTicksAGeneratedOption) {
  MoreOptionsPanel panel([](const std::string&) { return "False"; });
  panel.setGroups([] {
    return std::vector<OptionGroup>{
        {"Group", "Group", {{"Fan", "Fan", "", {{"False", "No"}, {"True", "Yes"}}}}}};
  });
  QString chosen;
  QObject::connect(&panel, &MoreOptionsPanel::optionChosen,
                   [&](const QString&, const QString& choice) { chosen = choice; });
  QAccessibleInterface& box = spokenOf(panel.findChild<QCheckBox*>());
  box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();
  EXPECT_EQ(chosen, QStringLiteral("True"));
}

}  // namespace

}  // namespace cutline
