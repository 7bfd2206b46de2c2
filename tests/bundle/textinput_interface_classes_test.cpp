// The classes that an interface file may name.
#include <gtest/gtest.h>

#include <chrono>
#include <climits>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/PDETextField13_v400_.h"
#include "bundle/textinput/interface_classes.h"
#include "platform/lib/CalendarDate.h"
#include "platform/ports/TextField.h"
#include "tests/bundle/TestPlatform.h"

namespace cutline::test {
namespace {

class InterfaceClassesTest : public testing::Test {
 protected:
  static FormatterDescription ofClass(const std::string& name) {
    FormatterDescription description;
    description.className = name;
    return description;
  }
  static FormatterDescription::NameLists names(const std::string& key,
                                               const std::vector<std::string>& list) {
    return {{key, list}};
  }
  std::shared_ptr<PDEFormatter> made() const {
    return std::dynamic_pointer_cast<PDEFormatter>(bundleInterfaceClasses().formatter(described));
  }

  FormatterDescription described = ofClass("PDEFormatter");
  TestPlatform platform;
};

TEST_F(InterfaceClassesTest, AFormatterWithoutSettingsIsAsInitMakesIt) {
  const auto formatter = made();
  ASSERT_TRUE(formatter);
  EXPECT_EQ(formatter->formatString(), "%@");
  EXPECT_EQ(formatter->textStyle(), 0);
  EXPECT_EQ(formatter->maxLength(), 0);
  EXPECT_FALSE(formatter->isValidityMinValue());
  EXPECT_FALSE(formatter->isValidityMaxValue());
  EXPECT_FALSE(formatter->isInvalidCharacter(""));
}

TEST_F(InterfaceClassesTest, SettingsGoThroughTheSetters) {
  described.formatString = "%03d";
  described.textStyle = 2;
  described.maxLength = 3;
  described.minValue = 0;
  described.maxValue = 255;
  described.invalidCharacters = {"8", "9", ""};
  const auto formatter = made();
  ASSERT_TRUE(formatter);
  EXPECT_EQ(formatter->formatString(), "%03d");
  EXPECT_EQ(formatter->textStyle(), 2);
  EXPECT_EQ(formatter->maxLength(), 3);
  EXPECT_EQ(formatter->minValue(), 0);
  EXPECT_EQ(formatter->maxValue(), 255);
  EXPECT_TRUE(formatter->isValidityMinValue());
  EXPECT_TRUE(formatter->isValidityMaxValue());
  for (const char* string : {"8", "9", ""}) EXPECT_TRUE(formatter->isInvalidCharacter(string));
  EXPECT_FALSE(formatter->isInvalidCharacter("7"));
}

TEST_F(InterfaceClassesTest, OneLimitLeavesTheOtherUnchecked) {
  described.minValue = INT_MIN;
  EXPECT_TRUE(made()->isValidityMinValue());
  EXPECT_FALSE(made()->isValidityMaxValue());
  described.minValue.reset();
  described.maxValue = INT_MAX;
  EXPECT_FALSE(made()->isValidityMinValue());
  EXPECT_TRUE(made()->isValidityMaxValue());
}

TEST_F(InterfaceClassesTest, WhatIsSaidOfTheCheckOfALimitIsMoreThanThatThereIsALimit) {
  described.minValue = 1;
  described.validityMinValue = false;
  described.validityMaxValue = true;
  const auto formatter = made();
  EXPECT_EQ(formatter->minValue(), 1);
  EXPECT_FALSE(formatter->isValidityMinValue());
  EXPECT_EQ(formatter->maxValue(), 0);
  EXPECT_TRUE(formatter->isValidityMaxValue());
}

TEST_F(InterfaceClassesTest, ADateIsShownInItsStyleAndItsLanguage) {
  using namespace std::chrono;
  described.calendarDate = sys_days(2026y / May / 1) + 14h;
  EXPECT_EQ(made()->textStyle(), 5);
  EXPECT_EQ(made()->formatString(), std::nullopt);
  EXPECT_EQ(made()->stringForObjectValue("any"), "2026-05-01 14:00:00 +0000");
  described.formatString = "%e %B, %I %p";
  described.calendarLocale = names("NSAMPMDesignation", {"vorm.", "nachm."});
  EXPECT_EQ(made()->stringForObjectValue("any"), "1 May, 02 nachm.");
}

TEST_F(InterfaceClassesTest, ALocaleWithoutADateIsKeptForOne) {
  described.textStyle = 5;
  described.calendarLocale = names("NSMonthNameArray", {"Januar"});
  const auto formatter = made();
  EXPECT_EQ(formatter->formatString(), "%@");
  EXPECT_EQ(formatter->stringForObjectValue("any"), "any");
  formatter->setFormatString("%B");
  formatter->setCalendarDate(std::make_shared<CalendarDate>(CalendarDate::Moment()));
  EXPECT_EQ(formatter->stringForObjectValue("any"), "Januar");
}

TEST_F(InterfaceClassesTest, EachFormatterIsItsOwn) { EXPECT_NE(made(), made()); }

TEST_F(InterfaceClassesTest, ATextFieldIsMadeForItsField) {
  const auto field = platform.toolkit.createTextField({});
  const auto client = bundleInterfaceClasses().textField("PDETextField13_v400_", *field);
  ASSERT_TRUE(std::dynamic_pointer_cast<PDETextField13_v400_>(client));
  NotificationObject object;
  platform.center.addObserver(
      this, [&](const Notification& notification) { object = notification.object; },
      "TextFieldResignFirstResponderNotification", {});
  client->selectText(nullptr);
  EXPECT_EQ(object, NotificationObject(static_cast<const void*>(static_cast<View*>(field.get()))));
}

TEST_F(InterfaceClassesTest, OtherNamesAreNoClasses) {
  const auto field = platform.toolkit.createTextField({});
  const InterfaceClasses& classes = bundleInterfaceClasses();
  for (const char* name : {"", "pdeformatter", "PDEFormatter ", "NSFormatter"}) {
    EXPECT_FALSE(classes.formatter(ofClass(name)));
  }
  for (const char* name : {"", "PDETextField", "PDETextField13_v400_x", "NSTextField"}) {
    EXPECT_FALSE(classes.textField(name, *field));
  }
  // A class of the one kind is none of the other.
  EXPECT_FALSE(classes.formatter(ofClass("PDETextField13_v400_")));
  EXPECT_FALSE(classes.textField("PDEFormatter", *field));
}

TEST_F(InterfaceClassesTest, ThePanelAnswersThem) {
  const OptionPDE13_v400_ panel;
  EXPECT_EQ(panel.interfaceClasses(), &bundleInterfaceClasses());
}

}  // namespace
}  // namespace cutline::test
