// A date of the calendar (the toolkit's NSCalendarDate): a moment and the distance from UTC that it
// is shown at.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace cutline {

class PropertyList;

class CalendarDate {
 public:
  using Moment = std::chrono::sys_time<std::chrono::milliseconds>;

  // The distance is positive east of Greenwich. Moments outside the years -9999 to 9999 and
  // distances of more than a day become the nearest that are inside.
  explicit CalendarDate(Moment moment, std::chrono::minutes fromUtc = {}) noexcept;

  // descriptionWithCalendarFormat:locale:  The date as the format says; without one as
  // "%Y-%m-%d %H:%M:%S %z" says. Conversions:
  //
  //   %a %A  weekday, short and in full    %b %B  month, short and in full
  //   %d %e  day, with two digits or not   %j     day of the year, 001 to 366
  //   %m     month, 01 to 12               %w     day of the week, Sunday is 0
  //   %y %Y  year, its last two digits or all
  //   %H %I  hour, 00 to 23 or 01 to 12    %M %S  minute, second
  //   %F     milliseconds, 000 to 999      %p     AM or PM
  //   %z %Z  distance from UTC as "+0130"; the same as a zone's name, "GMT+0130"
  //   %x     "%A, %B %e, %Y"               %X     "%H:%M:%S"
  //   %c     "%X %x"                       %%     a percent sign
  //
  // Any other stands as it is. Names are English, unless the locale is a dictionary that has them:
  // arrays of strings under "NSWeekDayNameArray", "NSShortWeekDayNameArray" (Sunday first),
  // "NSMonthNameArray", "NSShortMonthNameArray" and "NSAMPMDesignation". The locale may be null.
  std::string descriptionWithCalendarFormat(const std::optional<std::string>& format,
                                            const PropertyList* locale) const noexcept;

 private:
  Moment mMoment;
  std::chrono::minutes mFromUtc;
};

}  // namespace cutline
