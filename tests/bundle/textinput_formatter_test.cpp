// The formatter's initialisers, settings, forbidden list and what it shows.
#include <chrono>
#include <climits>

#include "platform/lib/CalendarDate.h"
#include "platform/lib/PropertyList.h"
#include "tests/bundle/FormatterTest.h"

namespace cutline::test {
namespace {

class PDEFormatterTest : public FormatterTest {
 protected:
  std::string shown(const std::string& value) {
    return formatter->stringForObjectValue(value).value_or("(nothing)");
  }
  void useFormat(const std::string& format, std::int32_t style) {
    formatter = std::make_shared<PDEFormatter>();
    formatter->initWithFormatString(format, style);
  }
  void useDate(const std::shared_ptr<const PropertyList>& locale) {
    formatter = std::make_shared<PDEFormatter>();
    formatter->initWithCalendarDate(date, locale);
  }

  // Sunday, 4 July 2021, 15:30 at one hour east of Greenwich.
  const std::shared_ptr<const CalendarDate> date = std::make_shared<CalendarDate>(
      CalendarDate::Moment(std::chrono::seconds(1625409000)), std::chrono::hours(1));
  const std::shared_ptr<const PropertyList> german =
      std::make_shared<PropertyList>(PropertyList::Dictionary{
          {"NSWeekDayNameArray",
           PropertyList(PropertyList::Array{PropertyList(std::string("Sonntag"))})}});
};

void expectNoLimits(const PDEFormatter& formatter) {
  EXPECT_EQ(formatter.maxLength(), 0);
  EXPECT_FALSE(formatter.isValidityMaxValue());
  EXPECT_FALSE(formatter.isValidityMinValue());
  EXPECT_EQ(formatter.maxValue(), 0);
  EXPECT_EQ(formatter.minValue(), 0);
  EXPECT_EQ(formatter.notificationObject(), nullptr);
  EXPECT_FALSE(formatter.isInvalidCharacter(""));
}

TEST_F(PDEFormatterTest, InitShowsTheObjectAndChecksNothing) {
  PDEFormatter made;
  EXPECT_EQ(made.init(), &made);
  EXPECT_EQ(made.formatString(), "%@");
  EXPECT_EQ(made.textStyle(), 0);
  EXPECT_EQ(made.calendarDate(), nullptr);
  EXPECT_EQ(made.calendarLocale(), nullptr);
  expectNoLimits(made);
}

TEST_F(PDEFormatterTest, InitWithStyleTakesTheStyle) {
  PDEFormatter made;
  EXPECT_EQ(made.initWithStyle(7), &made);
  EXPECT_EQ(made.formatString(), "%@");
  EXPECT_EQ(made.textStyle(), 7);
  expectNoLimits(made);
}

TEST_F(PDEFormatterTest, InitWithFormatStringTakesTheStringOrTheUsualOne) {
  PDEFormatter made;
  EXPECT_EQ(made.initWithFormatString("%d mm"), &made);
  EXPECT_EQ(made.formatString(), "%d mm");
  EXPECT_EQ(made.textStyle(), 0);
  expectNoLimits(made);
  PDEFormatter usual;
  EXPECT_EQ(usual.initWithFormatString(std::nullopt), &usual);
  EXPECT_EQ(usual.formatString(), "%@");
  PDEFormatter empty;
  empty.initWithFormatString("");
  EXPECT_EQ(empty.formatString(), "");
}

TEST_F(PDEFormatterTest, InitWithFormatStringAndStyleTakesBoth) {
  PDEFormatter made;
  EXPECT_EQ(made.initWithFormatString("%03d", 2), &made);
  EXPECT_EQ(made.formatString(), "%03d");
  EXPECT_EQ(made.textStyle(), 2);
  expectNoLimits(made);
  PDEFormatter usual;
  usual.initWithFormatString(std::nullopt, 4);
  EXPECT_EQ(usual.formatString(), "%@");
  EXPECT_EQ(usual.textStyle(), 4);
}

TEST_F(PDEFormatterTest, InitWithCalendarDateLeavesTheFormatStringUnset) {
  PDEFormatter made;
  EXPECT_EQ(made.initWithCalendarDate(date, german), &made);
  EXPECT_EQ(made.formatString(), std::nullopt);
  EXPECT_EQ(made.textStyle(), 5);
  EXPECT_EQ(made.calendarDate(), date);
  EXPECT_EQ(made.calendarLocale(), german);
  expectNoLimits(made);
}

TEST_F(PDEFormatterTest, TheFormatStringIsCopied) {
  std::string format = "%d";
  formatter->setFormatString(format);
  format = "changed";
  EXPECT_EQ(formatter->formatString(), "%d");
  formatter->setFormatString(std::nullopt);
  EXPECT_EQ(formatter->formatString(), "%@");
}

TEST_F(PDEFormatterTest, SettingALimitTurnsItsCheckOn) {
  formatter->setMaxValue(-7);
  EXPECT_EQ(formatter->maxValue(), -7);
  EXPECT_TRUE(formatter->isValidityMaxValue());
  EXPECT_FALSE(formatter->isValidityMinValue());
  formatter->setMinValue(INT_MIN);
  EXPECT_EQ(formatter->minValue(), INT_MIN);
  EXPECT_TRUE(formatter->isValidityMinValue());
  formatter->setValidityMaxValue(false);
  formatter->setValidityMinValue(false);
  EXPECT_FALSE(formatter->isValidityMaxValue());
  EXPECT_FALSE(formatter->isValidityMinValue());
  EXPECT_EQ(formatter->maxValue(), -7);
  EXPECT_EQ(formatter->minValue(), INT_MIN);
}

TEST_F(PDEFormatterTest, PlainSettingsAreKept) {
  formatter->setTextStyle(-3);
  EXPECT_EQ(formatter->textStyle(), -3);
  formatter->setMaxLength(12);
  EXPECT_EQ(formatter->maxLength(), 12);
}

TEST_F(PDEFormatterTest, ObjectsAreKeptAliveUntilOthersTakeTheirPlace) {
  auto object = std::make_shared<const int>(1);
  auto shownDate = std::make_shared<const CalendarDate>(*date);
  auto locale = std::make_shared<const PropertyList>();
  const std::weak_ptr<const void> kept[] = {object, shownDate, locale};
  formatter->setNotificationObject(std::move(object));
  formatter->setCalendarDate(std::move(shownDate));
  formatter->setCalendarLocale(std::move(locale));
  for (const auto& one : kept) EXPECT_FALSE(one.expired());
  formatter->setNotificationObject(nullptr);
  formatter->setCalendarDate(date);
  formatter->setCalendarLocale(nullptr);
  for (const auto& one : kept) EXPECT_TRUE(one.expired());
  EXPECT_EQ(formatter->calendarDate(), date);
  EXPECT_EQ(formatter->notificationObject(), nullptr);
  EXPECT_EQ(formatter->calendarLocale(), nullptr);
}

TEST_F(PDEFormatterTest, AForbiddenStringIsMatchedWhole) {
  EXPECT_FALSE(formatter->isInvalidCharacter("a"));
  formatter->addInvalidCharacter("ab");
  EXPECT_TRUE(formatter->isInvalidCharacter("ab"));
  EXPECT_FALSE(formatter->isInvalidCharacter("a"));
  EXPECT_FALSE(formatter->isInvalidCharacter("abc"));
  EXPECT_FALSE(formatter->isInvalidCharacter("AB"));
  EXPECT_FALSE(formatter->isInvalidCharacter(""));
  EXPECT_FALSE(formatter->isInvalidCharacter(std::nullopt));
  formatter->addInvalidCharacter("");
  EXPECT_TRUE(formatter->isInvalidCharacter(""));
}

TEST_F(PDEFormatterTest, NoStringIsNeitherAddedNorRemoved) {
  formatter->addInvalidCharacter(std::nullopt);
  EXPECT_FALSE(formatter->isInvalidCharacter(""));
  formatter->addInvalidCharacter("a");
  formatter->removeInvalidCharacter(std::nullopt);
  EXPECT_TRUE(formatter->isInvalidCharacter("a"));
}

TEST_F(PDEFormatterTest, RemovingTakesEveryEqualEntryAndNoOther) {
  formatter->removeInvalidCharacter("a");
  for (const char* string : {"a", "b", "a", "c", "a"}) formatter->addInvalidCharacter(string);
  formatter->removeInvalidCharacter("x");
  EXPECT_TRUE(formatter->isInvalidCharacter("a"));
  formatter->removeInvalidCharacter("a");
  EXPECT_FALSE(formatter->isInvalidCharacter("a"));
  EXPECT_TRUE(formatter->isInvalidCharacter("b"));
  EXPECT_TRUE(formatter->isInvalidCharacter("c"));
  formatter->removeInvalidCharacter("b");
  formatter->removeInvalidCharacter("c");
  formatter->removeInvalidCharacter("c");
  EXPECT_FALSE(formatter->isInvalidCharacter("c"));
  formatter->addInvalidCharacter("c");
  EXPECT_TRUE(formatter->isInvalidCharacter("c"));
}

TEST_F(PDEFormatterTest, ShowsTheObjectItselfWhereTheFormatHasItsConversion) {
  for (const std::int32_t style : {0, 1, 2, 4, 5, 12}) {
    useFormat("<%@>", style);
    EXPECT_EQ(shown("12abc"), "<12abc>") << style;
    EXPECT_EQ(shown(""), "<>") << style;
    EXPECT_EQ(formatter->stringForObjectValue(-5), "<-5>") << style;
  }
}

TEST_F(PDEFormatterTest, ShowsTheIntegerInStylesOfNumbers) {
  for (const std::int32_t style : {2, 4}) {
    useFormat("%03d mm", style);
    EXPECT_EQ(shown("12"), "012 mm") << style;
    EXPECT_EQ(shown("12.9"), "012 mm") << style;
    EXPECT_EQ(shown(" -7x"), "-07 mm") << style;
    EXPECT_EQ(shown("abc"), "000 mm") << style;
    EXPECT_EQ(shown("99999999999"), "2147483647 mm") << style;
    EXPECT_EQ(formatter->stringForObjectValue(INT_MIN), "-2147483648 mm") << style;
    EXPECT_EQ(formatter->stringForObjectValue(5), "005 mm") << style;
  }
}

TEST_F(PDEFormatterTest, AnIntegerConversionFitsNoObjectInOtherStyles) {
  for (const std::int32_t style : {0, 1, 3, 6, 12}) {
    useFormat("%d", style);
    EXPECT_EQ(shown("12"), "(null)") << style;
  }
}

TEST_F(PDEFormatterTest, AFormatStringReachesNoMemoryBesideItsArgument) {
  useFormat("%@ %@ %s %n %d %%", 0);
  EXPECT_EQ(shown("a%n%s"), "a%n%s (null) (null)  (null) %");
  useFormat("%d %d %n%s%", 2);
  EXPECT_EQ(shown("3"), "3 (null) (null)%");
}

class NamedTape final : public Describable {
 public:
  std::string description() const noexcept override { return "24 mm"; }
};

TEST_F(PDEFormatterTest, ShowsWhateverDescribesItself) {
  const NamedTape tape;
  EXPECT_EQ(formatter->stringForObjectValue(&tape), "24 mm");
  useFormat("%d", 2);
  EXPECT_EQ(formatter->stringForObjectValue(&tape), "24");
  EXPECT_EQ(formatter->stringForObjectValue(nullptr), "0");
  useFormat("%@", 2);
  EXPECT_EQ(formatter->stringForObjectValue(nullptr), "(null)");
}

TEST_F(PDEFormatterTest, ADateTakesThePlaceOfAnyValue) {
  useDate(nullptr);
  EXPECT_EQ(shown("12"), "2021-07-04 15:30:00 +0100");
  EXPECT_EQ(formatter->stringForObjectValue(3), "2021-07-04 15:30:00 +0100");
  EXPECT_EQ(formatter->stringForObjectValue(nullptr), "2021-07-04 15:30:00 +0100");
  formatter->setFormatString("%A %d.%m.%Y");
  EXPECT_EQ(shown("12"), "Sunday 04.07.2021");
  formatter->setCalendarLocale(german);
  EXPECT_EQ(shown(""), "Sonntag 04.07.2021");
  formatter->setFormatString(std::nullopt);
  EXPECT_EQ(shown("12"), "%@");
}

TEST_F(PDEFormatterTest, ADateIsShownInItsStyleOnly) {
  useDate(german);
  formatter->setTextStyle(2);
  formatter->setFormatString("%d");
  EXPECT_EQ(shown("12"), "12");
  formatter->setTextStyle(5);
  formatter->setCalendarDate(nullptr);
  formatter->setFormatString("%@!");
  EXPECT_EQ(shown("12"), "12!");
}

TEST_F(PDEFormatterTest, WithoutAFormatStringAndADateNothingIsShown) {
  PDEFormatter made;
  made.initWithCalendarDate(nullptr, nullptr);
  EXPECT_EQ(made.stringForObjectValue(std::string("12")), std::nullopt);
  PDEFormatter untouched;
  EXPECT_EQ(untouched.stringForObjectValue(3), std::nullopt);
}

TEST_F(PDEFormatterTest, TheValueOfATextIsWhatItShows) {
  const std::vector<std::pair<std::string, std::int32_t>> formats = {
      {"%@", 0}, {"<%@>", 2}, {"%04d", 2}, {"%d mm", 4}};
  for (const auto& [format, style] : formats) {
    useFormat(format, style);
    std::optional<std::string> value;
    std::string error = "untouched";
    EXPECT_TRUE(formatter->getObjectValue(&value, "12.5x", &error));
    EXPECT_EQ(value, shown("12.5x")) << format;
    EXPECT_EQ(error, "untouched");
  }
  useDate(german);
  std::optional<std::string> value;
  EXPECT_TRUE(formatter->getObjectValue(&value, "ignored", nullptr));
  EXPECT_EQ(value, "2021-07-04 15:30:00 +0100");
}

TEST_F(PDEFormatterTest, WithoutATextOrAPlaceForItsValueNothingHappens) {
  std::string error = "untouched";
  EXPECT_TRUE(formatter->getObjectValue(nullptr, "12", &error));
  std::optional<std::string> value = "kept";
  EXPECT_TRUE(formatter->getObjectValue(&value, std::nullopt, &error));
  EXPECT_EQ(value, "kept");
  EXPECT_TRUE(formatter->getObjectValue(nullptr, std::nullopt, nullptr));
  EXPECT_EQ(error, "untouched");
}

}  // namespace
}  // namespace cutline::test
