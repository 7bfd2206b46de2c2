#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "plain/PlainControls.h"
#include "plain/PlainTextField.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"
#include "tests/platform/RecordingClient.h"
#include "tests/platform/RecordingFormatter.h"
#include "tests/support/Printers.h"

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

TEST_F(PlainTextFieldTest, EveryCharacterThatIsTypedIsAChange) {
  field->type("1\xF0\x9F\x99\x82");
  EXPECT_EQ(field->stringValue(), "1\xF0\x9F\x99\x82");
  EXPECT_EQ(field->selectedRange(), (TextRange{3, 0}));
  EXPECT_EQ(std::count(log.lines.begin(), log.lines.end(), "changed"), 2);
}

TEST_F(PlainTextFieldTest, TypingReplacesTheSelection) {
  field->setStringValue("12345");
  field->setSelectedRange({1, 3});
  field->type("x");
  EXPECT_EQ(field->stringValue(), "1x5");
  EXPECT_EQ(field->selectedRange(), (TextRange{2, 0}));
}

TEST_F(PlainTextFieldTest, ASelectionLiesWithinTheText) {
  field->setStringValue("123");
  EXPECT_EQ(field->selectedRange(), (TextRange{3, 0}));
  field->setSelectedRange({2, 9});
  EXPECT_EQ(field->selectedRange(), (TextRange{2, 1}));
  field->setSelectedRange({9, 9});
  EXPECT_EQ(field->selectedRange(), (TextRange{3, 0}));
}

TEST_F(PlainTextFieldTest, DeletingTakesTheSelectionOrAWholeCharacter) {
  field->setStringValue("a\xF0\x9F\x99\x82z");
  field->deleteBackward();
  EXPECT_EQ(field->stringValue(), "a\xF0\x9F\x99\x82");
  field->deleteForward();
  EXPECT_EQ(field->stringValue(), "a\xF0\x9F\x99\x82");
  field->deleteBackward();
  EXPECT_EQ(field->stringValue(), "a");
  field->setStringValue("\xF0\x9F\x99\x82xyz");
  field->setSelectedRange({0, 0});
  field->deleteBackward();
  field->deleteForward();
  EXPECT_EQ(field->stringValue(), "xyz");
  field->setSelectedRange({1, 2});
  field->deleteForward();
  EXPECT_EQ(field->stringValue(), "x");
}

TEST_F(PlainTextFieldTest, WhatWasEmptiedAndCorrectedIsSelected) {
  field->setStringValue("12");
  field->setTextDidChange([&] { field->setStringValue("1"); });
  field->typeText("");
  EXPECT_EQ(field->stringValue(), "1");
  EXPECT_EQ(field->selectedRange(), (TextRange{0, 1}));
}

TEST_F(PlainTextFieldTest, FormatterIsAskedForEveryEditOfTheUser) {
  const auto formatter = std::make_shared<RecordingFormatter>();
  field->setStringValue("12");
  field->setFormatter(formatter);
  field->type("3");
  field->setSelectedRange({1, 1});
  field->paste("xy");
  field->deleteBackward();
  field->deleteForward();
  field->typeText("9");
  const std::vector<AskedEdit> expected = {{"12", {2, 0}, "123", {3, 0}},
                                           {"123", {1, 1}, "1xy3", {3, 0}},
                                           {"1xy3", {3, 0}, "1x3", {2, 0}},
                                           {"1x3", {2, 0}, "1x", {2, 0}},
                                           {"1x", {0, 2}, "9", {1, 0}}};
  EXPECT_EQ(formatter->asked, expected);
}

TEST_F(PlainTextFieldTest, FormatterIsNotAskedWhenNothingWouldChange) {
  const auto formatter = std::make_shared<RecordingFormatter>();
  field->setFormatter(formatter);
  field->setStringValue("12");
  field->deleteForward();
  field->typeText("12");
  field->pressReturn();
  field->leave();
  EXPECT_TRUE(formatter->asked.empty());
}

TEST_F(PlainTextFieldTest, RefusedEditLeavesTextAndSelection) {
  const auto formatter = std::make_shared<RecordingFormatter>();
  field->setStringValue("123");
  field->setFormatter(formatter);
  field->setSelectedRange({1, 1});
  formatter->refuseEverything();
  field->type("x");
  field->paste("xy");
  field->deleteBackward();
  field->typeText("7");
  EXPECT_EQ(formatter->asked.size(), 4U);
  EXPECT_EQ(field->stringValue(), "123");
  EXPECT_EQ(field->selectedRange(), (TextRange{1, 1}));
  field->leave();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, FormatterMayBeRemovedWhileItIsAsked) {
  auto formatter = std::make_shared<RecordingFormatter>();
  formatter->judge = [&](const AskedEdit&) {
    field->setFormatter(nullptr);
    return false;
  };
  field->setFormatter(formatter);
  formatter.reset();
  field->type("12");
  EXPECT_EQ(field->stringValue(), "2");
}

TEST_F(PlainTextFieldTest, TextThatTheFormatterSetsWhileItIsAskedStands) {
  const auto formatter = std::make_shared<RecordingFormatter>();
  formatter->judge = [&](const AskedEdit&) {
    field->setStringValue("set");
    return true;
  };
  field->setFormatter(formatter);
  field->type("x");
  EXPECT_EQ(field->stringValue(), "set");
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainTextFieldTest, TextIsShownAsTheFormatterHasIt) {
  const auto formatter = std::make_shared<RecordingFormatter>();
  formatter->showMillimetres();
  field->setFormatter(formatter);
  field->setStringValue("12");
  EXPECT_EQ(field->stringValue(), "12 mm");
  field->typeText("7");
  EXPECT_EQ(field->stringValue(), "7");
  field->leave();
  EXPECT_EQ(field->stringValue(), "7 mm");
}

TEST_F(PlainTextFieldTest, ClientIsToldInsteadOfTheHandler) {
  const auto client = std::make_shared<RecordingClient>(*field, log.lines);
  client->passesOn = false;
  field->setClient(client);
  field->type("12");
  field->leave();
  const std::vector<std::string> expected = {"become", "change NSTextDidChangeNotification",
                                             "change NSTextDidChangeNotification",
                                             "end NSTextDidEndEditingNotification"};
  EXPECT_EQ(log.lines, expected);
  EXPECT_TRUE(client->resigned);
  const View* view = field.get();
  EXPECT_EQ(client->lastObject, NotificationObject(static_cast<const void*>(view)));
}

TEST_F(PlainTextFieldTest, ClientMayPassEverythingOn) {
  field->setClient(std::make_shared<RecordingClient>(*field, log.lines));
  field->type("1");
  field->leave();
  const std::vector<std::string> expected = {
      "become",   "change NSTextDidChangeNotification",  "changed",
      "finished", "end NSTextDidEndEditingNotification", "action",
      "finished"};
  EXPECT_EQ(log.lines, expected);
}

TEST_F(PlainTextFieldTest, NobodyTypesWhereTheClientDoesNotTakeTheKeyboard) {
  const auto client = std::make_shared<RecordingClient>(*field, log.lines);
  client->takesKeyboard = false;
  field->setClient(client);
  EXPECT_FALSE(field->focus());
  field->type("1");
  field->leave();
  EXPECT_EQ(field->stringValue(), "");
  EXPECT_EQ(log.lines, (std::vector<std::string>{"become", "become"}));
}

TEST_F(PlainTextFieldTest, SelectTextIsUpToTheClient) {
  field->setStringValue("123");
  field->selectText(nullptr);
  EXPECT_EQ(field->selectedRange(), (TextRange{0, 3}));
  field->setSelectedRange({1, 0});
  const auto client = std::make_shared<RecordingClient>(*field, log.lines);
  field->setClient(client);
  field->selectText(field.get());
  EXPECT_EQ(field->selectedRange(), (TextRange{1, 0}));
  EXPECT_EQ(log.lines, (std::vector<std::string>{"select"}));
  EXPECT_EQ(client->lastSender, field.get());
}

TEST_F(PlainTextFieldTest, WhatTheClientRaisesAtTheEndIsPassedOn) {
  const auto client = std::make_shared<RecordingClient>(*field, log.lines);
  client->raises = true;
  field->setClient(client);
  ASSERT_TRUE(field->focus());
  EXPECT_THROW(field->pressReturn(), std::runtime_error);
  EXPECT_THROW(field->leave(), std::runtime_error);
}

TEST_F(PlainTextFieldTest, FieldOutlivesTheCallThatLetsItGo) {
  field->setClient(std::make_shared<RecordingClient>(*field, log.lines));
  field->setAction([&](View*) { field.reset(); });
  const std::weak_ptr<PlainTextField> watched = field;
  field->type("1");
  field->leave();
  EXPECT_TRUE(watched.expired());
}

TEST_F(PlainTextFieldTest, TypingEndsWithAFieldThatGoes) {
  field->setTextDidChange([&] { field.reset(); });
  field->type("12");
  EXPECT_EQ(field, nullptr);
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
