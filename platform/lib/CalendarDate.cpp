#include "platform/lib/CalendarDate.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/lib/PropertyList.h"

namespace cutline {
namespace {

using std::chrono::days;
using std::chrono::minutes;

constexpr std::string_view kUsualFormat = "%Y-%m-%d %H:%M:%S %z";

constexpr minutes kFarthestFromUtc = days(1);
constexpr CalendarDate::Moment kFirst =
    std::chrono::sys_days(std::chrono::year(-9999) / std::chrono::January / 1);
constexpr CalendarDate::Moment kEnd =
    std::chrono::sys_days(std::chrono::year(10000) / std::chrono::January / 1);

// A list of names: where a locale has it, and what it is in English.
struct Names {
  const char* key;
  std::string_view english[12];
};
constexpr Names kMonths = {"NSMonthNameArray",
                           {"January", "February", "March", "April", "May", "June", "July",
                            "August", "September", "October", "November", "December"}};
constexpr Names kShortMonths = {
    "NSShortMonthNameArray",
    {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}};
constexpr Names kWeekdays = {
    "NSWeekDayNameArray",
    {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}};
constexpr Names kShortWeekdays = {"NSShortWeekDayNameArray",
                                  {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}};
constexpr Names kHalvesOfDay = {"NSAMPMDesignation", {"AM", "PM"}};

// A date taken apart, as it is at its distance from UTC.
struct Parts {
  Parts(CalendarDate::Moment moment, minutes fromUtcOfDate) : fromUtc(fromUtcOfDate) {
    const auto shown = moment + fromUtc;
    const auto midnight = std::chrono::floor<days>(shown);
    const std::chrono::year_month_day date(midnight);
    const std::chrono::sys_days newYear = date.year() / std::chrono::January / 1;
    const std::chrono::hh_mm_ss time(shown - midnight);
    year = static_cast<int>(date.year());
    month = static_cast<unsigned>(date.month());
    day = static_cast<unsigned>(date.day());
    dayOfYear = (midnight - newYear).count() + 1;
    weekday = std::chrono::weekday(midnight).c_encoding();
    hour = time.hours().count();
    minute = time.minutes().count();
    second = time.seconds().count();
    millisecond = time.subseconds().count();
  }

  minutes fromUtc;
  std::int64_t year, month, day, dayOfYear, weekday, hour, minute, second, millisecond;
};

std::string digits(std::int64_t value, std::size_t least) {
  const std::string number = std::to_string(value);
  return std::string(least - std::min(least, number.size()), '0') + number;
}

std::string name(const Names& names, std::int64_t position, const PropertyList* locale) {
  const auto index = static_cast<std::size_t>(position);
  const PropertyList* entry = locale ? locale->objectForKey(names.key) : nullptr;
  const PropertyList::Array* array = entry ? entry->array() : nullptr;
  const std::string* own = array && index < array->size() ? (*array)[index].string() : nullptr;
  return own ? *own : std::string(names.english[index]);
}

std::string distance(const Parts& date) {
  const auto amount = std::chrono::abs(date.fromUtc).count();
  return (date.fromUtc < minutes(0) ? "-" : "+") + digits(amount / 60, 2) + digits(amount % 60, 2);
}

std::string formatted(std::string_view format, const Parts& date, const PropertyList* locale);

struct Conversion {
  char letter;
  std::string (*text)(const Parts& date, const PropertyList* locale);
};

using Locale = const PropertyList*;

constexpr Conversion kConversions[] = {
    {'a', [](const Parts& date, Locale of) { return name(kShortWeekdays, date.weekday, of); }},
    {'A', [](const Parts& date, Locale of) { return name(kWeekdays, date.weekday, of); }},
    {'b', [](const Parts& date, Locale of) { return name(kShortMonths, date.month - 1, of); }},
    {'B', [](const Parts& date, Locale of) { return name(kMonths, date.month - 1, of); }},
    {'p', [](const Parts& date, Locale of) { return name(kHalvesOfDay, date.hour / 12, of); }},
    {'d', [](const Parts& date, Locale) { return digits(date.day, 2); }},
    {'e', [](const Parts& date, Locale) { return digits(date.day, 1); }},
    {'j', [](const Parts& date, Locale) { return digits(date.dayOfYear, 3); }},
    {'m', [](const Parts& date, Locale) { return digits(date.month, 2); }},
    {'w', [](const Parts& date, Locale) { return digits(date.weekday, 1); }},
    {'y', [](const Parts& date, Locale) { return digits(std::abs(date.year % 100), 2); }},
    {'Y', [](const Parts& date, Locale) { return digits(date.year, 1); }},
    {'H', [](const Parts& date, Locale) { return digits(date.hour, 2); }},
    {'I', [](const Parts& date, Locale) { return digits((date.hour + 11) % 12 + 1, 2); }},
    {'M', [](const Parts& date, Locale) { return digits(date.minute, 2); }},
    {'S', [](const Parts& date, Locale) { return digits(date.second, 2); }},
    {'F', [](const Parts& date, Locale) { return digits(date.millisecond, 3); }},
    {'z', [](const Parts& date, Locale) { return distance(date); }},
    {'Z', [](const Parts& date,
             Locale) { return date.fromUtc == minutes(0) ? "GMT" : "GMT" + distance(date); }},
    {'x', [](const Parts& date, Locale of) { return formatted("%A, %B %e, %Y", date, of); }},
    {'X', [](const Parts& date, Locale of) { return formatted("%H:%M:%S", date, of); }},
    {'c', [](const Parts& date, Locale of) { return formatted("%X %x", date, of); }},
    {'%', [](const Parts&, Locale) { return std::string("%"); }},
};

// What the "%" and the letter behind it print; themselves when that is no conversion.
std::string converted(std::string_view spelling, const Parts& date, const PropertyList* locale) {
  for (const Conversion& conversion : kConversions) {
    if (spelling.back() == conversion.letter && spelling.size() == 2) {
      return conversion.text(date, locale);
    }
  }
  return std::string(spelling);
}

std::string formatted(std::string_view format, const Parts& date, const PropertyList* locale) {
  std::string text;
  while (!format.empty()) {
    const auto plain = std::min(format.find('%'), format.size());
    text.append(format.substr(0, plain));
    format.remove_prefix(plain);
    if (format.empty()) break;
    const std::string_view spelling = format.substr(0, 2);
    text += converted(spelling, date, locale);
    format.remove_prefix(spelling.size());
  }
  return text;
}

}  // namespace

CalendarDate::CalendarDate(Moment moment, minutes fromUtc) noexcept
    : mMoment(std::clamp(moment, kFirst, kEnd - std::chrono::milliseconds(1))),
      mFromUtc(std::clamp(fromUtc, -kFarthestFromUtc, kFarthestFromUtc)) {}

std::string CalendarDate::descriptionWithCalendarFormat(const std::optional<std::string>& format,
                                                        const PropertyList* locale) const noexcept {
  const std::string_view used = format ? std::string_view(*format) : kUsualFormat;
  return formatted(used, Parts(mMoment, mFromUtc), locale);
}

}  // namespace cutline
