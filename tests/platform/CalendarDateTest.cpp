#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/lib/CalendarDate.h"
#include "platform/lib/PropertyList.h"

namespace cutline {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::sys_days;

// Wednesday, 3 March 2021, 14:05:09.007 UTC.
const CalendarDate::Moment kMoment =
    sys_days(std::chrono::year(2021) / 3 / 3) + 14h + 5min + 9s + 7ms;

std::string described(const CalendarDate& date, const std::optional<std::string>& format,
                      const PropertyList* locale = nullptr) {
  return date.descriptionWithCalendarFormat(format, locale);
}

TEST(CalendarDate, HasEachConversion) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"%a", "Wed"},
      {"%A", "Wednesday"},
      {"%b", "Mar"},
      {"%B", "March"},
      {"%d", "03"},
      {"%e", "3"},
      {"%H", "14"},
      {"%I", "02"},
      {"%j", "062"},
      {"%m", "03"},
      {"%M", "05"},
      {"%p", "PM"},
      {"%S", "09"},
      {"%w", "3"},
      {"%y", "21"},
      {"%Y", "2021"},
      {"%Z", "GMT"},
      {"%z", "+0000"},
      {"%F", "007"},
      {"%%", "%"},
      {"%X", "14:05:09"},
      {"%x", "Wednesday, March 3, 2021"},
      {"%c", "14:05:09 Wednesday, March 3, 2021"}};
  const CalendarDate date(kMoment);
  for (const auto& [format, text] : expected) {
    EXPECT_EQ(described(date, format), text) << format;
    EXPECT_EQ(described(date, "<" + format + ">"), "<" + text + ">") << format;
  }
}

TEST(CalendarDate, WithoutAFormatShowsDateTimeAndDistance) {
  EXPECT_EQ(described(CalendarDate(kMoment), std::nullopt), "2021-03-03 14:05:09 +0000");
  EXPECT_EQ(described(CalendarDate(kMoment), ""), "");
}

TEST(CalendarDate, UnknownConversionsStandAsTheyAre) {
  EXPECT_EQ(described(CalendarDate(kMoment), "%@ %n %5d %q%"), "%@ %n %5d %q%");
  EXPECT_EQ(described(CalendarDate(kMoment), "%%d"), "%d");
  EXPECT_EQ(described(CalendarDate(kMoment), "%%%d"), "%03");
}

TEST(CalendarDate, IsShownAtItsDistanceFromUtc) {
  const std::string format = "%Y-%m-%d %H:%M %j %a %z %Z";
  EXPECT_EQ(described(CalendarDate(kMoment, 5h + 30min), format),
            "2021-03-03 19:35 062 Wed +0530 GMT+0530");
  EXPECT_EQ(described(CalendarDate(kMoment, -(14h + 6min)), format),
            "2021-03-02 23:59 061 Tue -1406 GMT-1406");
  EXPECT_EQ(described(CalendarDate(sys_days(std::chrono::year(2020) / 12 / 31) + 23h, 1h), format),
            "2021-01-01 00:00 001 Fri +0100 GMT+0100");
}

TEST(CalendarDate, CountsHoursTwelveByTwelve) {
  const auto midnight = sys_days(std::chrono::year(2020) / 2 / 29);
  const std::vector<std::pair<std::chrono::hours, std::string>> expected = {
      {0h, "12 AM"}, {1h, "01 AM"}, {11h, "11 AM"}, {12h, "12 PM"}, {13h, "01 PM"}, {23h, "11 PM"}};
  for (const auto& [hour, text] : expected) {
    EXPECT_EQ(described(CalendarDate(midnight + hour), "%I %p"), text);
  }
}

TEST(CalendarDate, KnowsLeapDaysAndMomentsBeforeTheEpoch) {
  EXPECT_EQ(described(CalendarDate(sys_days(std::chrono::year(2020) / 12 / 31)), "%j"), "366");
  EXPECT_EQ(described(CalendarDate(sys_days(std::chrono::year(2000) / 2 / 29)), "%F %w %d %b"),
            "000 2 29 Feb");
  EXPECT_EQ(described(CalendarDate(CalendarDate::Moment(-1ms)), "%Y-%m-%d %H:%M:%S.%F %w"),
            "1969-12-31 23:59:59.999 3");
}

TEST(CalendarDate, NamesEveryDayAndMonth) {
  std::string weekdays;
  for (int i = 0; i < 7; ++i) {
    weekdays +=
        described(CalendarDate(sys_days(std::chrono::year(2021) / 8 / 1) + days(i)), "%a%A ");
  }
  EXPECT_EQ(weekdays,
            "SunSunday MonMonday TueTuesday WedWednesday ThuThursday FriFriday SatSaturday ");
  std::string months;
  for (unsigned i = 1; i <= 12; ++i) {
    months += described(CalendarDate(sys_days(std::chrono::year(2021) / i / 1)), "%b%B ");
  }
  EXPECT_EQ(months,
            "JanJanuary FebFebruary MarMarch AprApril MayMay JunJune JulJuly AugAugust "
            "SepSeptember OctOctober NovNovember DecDecember ");
}

PropertyList names(const std::vector<std::string>& texts) {
  PropertyList::Array array;
  for (const std::string& text : texts) array.emplace_back(text);
  return PropertyList(array);
}

TEST(CalendarDate, ALocaleReplacesTheNames) {
  const PropertyList french(PropertyList::Dictionary{
      {"NSMonthNameArray", names({"janvier", "février", "mars"})},
      {"NSShortMonthNameArray", names({"janv.", "févr.", "mars"})},
      {"NSWeekDayNameArray", names({"dimanche", "lundi", "mardi", "mercredi"})},
      {"NSShortWeekDayNameArray", names({"dim.", "lun.", "mar.", "mer."})},
      {"NSAMPMDesignation", names({"matin", "après-midi"})}});
  EXPECT_EQ(described(CalendarDate(kMoment), "%a %A %b %B %p %x", &french),
            "mer. mercredi mars mars après-midi mercredi, mars 3, 2021");
  EXPECT_EQ(described(CalendarDate(kMoment, -(14h + 6min)), "%A", &french), "mardi");
}

TEST(CalendarDate, WhatALocaleLacksIsEnglish) {
  const CalendarDate december(sys_days(std::chrono::year(2021) / 12 / 31));
  const PropertyList tooShort(
      PropertyList::Dictionary{{"NSMonthNameArray", names({"janvier"})},
                               {"NSShortMonthNameArray", PropertyList(std::string("déc."))},
                               {"NSWeekDayNameArray", PropertyList(PropertyList::Array(7))}});
  EXPECT_EQ(described(december, "%B %b %A %a %p", &tooShort), "December Dec Friday Fri AM");
  const PropertyList noDictionary(std::string("fr"));
  EXPECT_EQ(described(december, "%B", &noDictionary), "December");
}

TEST(CalendarDate, TheFarthestMomentsAreTheFirstAndTheLast) {
  using Moment = CalendarDate::Moment;
  EXPECT_EQ(described(CalendarDate(Moment::max(), std::chrono::minutes::max()), std::nullopt),
            "10000-01-01 23:59:59 +2400");
  EXPECT_EQ(described(CalendarDate(Moment::max()), "%Y-%m-%d %F"), "9999-12-31 999");
  EXPECT_EQ(described(CalendarDate(Moment::min()), "%Y-%m-%d %F %y"), "-9999-01-01 000 99");
  EXPECT_EQ(described(CalendarDate(Moment(0ms), std::chrono::minutes::min()), "%d %z"), "31 -2400");
}

}  // namespace
}  // namespace cutline
