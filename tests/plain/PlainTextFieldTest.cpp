#include <gtest/gtest.h>

#include "plain/PlainLabel.h"
#include "plain/PlainTextField.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

class PlainTextFieldTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    field->setAction(log.action());
    field->setTextDidChange([&] { log.lines.emplace_back("changed"); });
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<PlainTextField> field =
      std::dynamic_pointer_cast<PlainTextField>(toolkit.createTextField({}));
};

TEST_F(PlainTextFieldTest, TypingReportsAChangeAndThenTellsTheObserver) {
  field->typeText("12");
  EXPECT_EQ(field->stringValue(), "12");
  EXPECT_EQ(log.lines, (std::vector<std::string>{"changed", "finished"}));
  EXPECT_EQ(log.finished, field.get());
}

TEST_F(PlainTextFieldTest, TypingTheSameTextIsNoChange) {
  field->setStringValue("12");
  field->typeText("12");
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, SettingReportsNothing) {
  field->setStringValue("12");
  EXPECT_EQ(field->stringValue(), "12");
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, AChangeMayBeCorrectedWhileItIsReported) {
  int reports = 0;
  field->setTextDidChange([&] {
    ++reports;
    field->setStringValue("99");
  });
  field->typeText("250");
  EXPECT_EQ(field->stringValue(), "99");
  EXPECT_EQ(reports, 1);
}

TEST_F(PlainTextFieldTest, ReturnAndLeavingAreOneAction) {
  field->setTextDidChange({});
  field->typeText("12");
  field->pressReturn();
  EXPECT_EQ(log.lines, kActedAndFinished);
  field->leave();
  EXPECT_EQ(log.lines, kActedAndFinished);
}

TEST_F(PlainTextFieldTest, EndingWithoutAnEditRunsNothing) {
  EXPECT_TRUE(field->focus());
  field->pressReturn();
  field->leave();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, NobodyTypesIntoADisabledField) {
  field->setEnabled(false);
  field->typeText("12");
  field->pressReturn();
  EXPECT_EQ(field->stringValue(), "");
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, TakesATextColour) {
  EXPECT_EQ(field->textColor(), TextColor::controlText);
  field->setTextColor(TextColor::disabledControlText);
  EXPECT_EQ(field->textColor(), TextColor::disabledControlText);
}

TEST(PlainLabel, IsFoundAsSomethingThatTakesATextColour) {
  PlainToolkit toolkit;
  const std::shared_ptr<View> view = toolkit.createLabel({});
  auto* colored = dynamic_cast<TextColored*>(view.get());
  ASSERT_TRUE(colored);
  colored->setTextColor(TextColor::disabledControlText);
  EXPECT_EQ(dynamic_cast<Label&>(*view).textColor(), TextColor::disabledControlText);
}

TEST(PlainLabel, KeepsItsText) {
  PlainToolkit toolkit;
  const auto label = toolkit.createLabel({});
  label->setStringValue("label(s)");
  EXPECT_EQ(label->stringValue(), "label(s)");
}

}  // namespace
}  // namespace cutline
