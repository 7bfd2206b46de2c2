// Shows a value by a format string, and vets what is typed into a text field: its characters, its
// length and its value. A refused edit beeps and posts one notification.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bundle/format/Describable.h"
#include "platform/ports/Formatter.h"
#include "platform/ports/NotificationCenter.h"

namespace cutline {

class CalendarDate;
class PropertyList;

// The notifications of a refused edit. Their object is what setNotificationObject: set, or else the
// formatter, each known by its address (that of the PDEFormatter), but for the exception below.

// A character may not be typed, or the text is too long. The object is the character, as a text,
// when the typed text is outside the encodings or forbidden.
inline constexpr char kInvalidCharacterNotification[] = "InvalidCharacterNotification";
// A number is too large or too small.
inline constexpr char kFormatErrorNotification[] = "FormatErrorNotification";

class PDEFormatter final : public Formatter, public Describable {
 public:
  PDEFormatter() noexcept = default;

  std::string description() const noexcept override { return describedAs("PDEFormatter", this); }

  // The initialisers are for a new object, and hand it back.
  PDEFormatter* init() noexcept;
  // initWithStyle:
  PDEFormatter* initWithStyle(std::int32_t style) noexcept;
  // initWithFormatString:  Nothing means "%@".
  PDEFormatter* initWithFormatString(const std::optional<std::string>& string) noexcept;
  // initWithFormatString:withStyle:
  PDEFormatter* initWithFormatString(const std::optional<std::string>& string,
                                     std::int32_t style) noexcept;
  // initWithCalendarDate:locale:  Leaves the format string unset: the date is shown in its own
  // usual format. Either may be null.
  PDEFormatter* initWithCalendarDate(std::shared_ptr<const CalendarDate> date,
                                     std::shared_ptr<const PropertyList> locale) noexcept;

  // setFormatString:  Nothing means "%@".
  void setFormatString(const std::optional<std::string>& string) noexcept;
  std::optional<std::string> formatString() const noexcept { return mFormatString; }
  // setCalendarDate:  The date that the date style shows in place of any value.
  void setCalendarDate(std::shared_ptr<const CalendarDate> date) noexcept;
  const std::shared_ptr<const CalendarDate>& calendarDate() const noexcept { return mDate; }
  // setCalendarLocale:  A dictionary, as CalendarDate reads it.
  void setCalendarLocale(std::shared_ptr<const PropertyList> locale) noexcept;
  const std::shared_ptr<const PropertyList>& calendarLocale() const noexcept { return mLocale; }
  // setNotificationObject:  What notifications are about, in place of the formatter. Observers know
  // it by this address, which for a view is that of its View. Kept alive; null for none.
  void setNotificationObject(std::shared_ptr<const void> object) noexcept;
  const std::shared_ptr<const void>& notificationObject() const noexcept { return mObject; }
  // The same for an object that isn't kept alive, such as a view around the formatter's own field,
  // or for a text.
  void setNotificationIdentity(NotificationObject identity) noexcept;

  // setTextStyle:  Which characters are accepted; see text_styles.h.
  void setTextStyle(std::int32_t style) noexcept { mTextStyle = style; }
  std::int32_t textStyle() const noexcept { return mTextStyle; }
  // setMaxLength:  In bytes of the system's encoding; 0 is no limit.
  void setMaxLength(std::int32_t length) noexcept { mMaxLength = length; }
  std::int32_t maxLength() const noexcept { return mMaxLength; }
  // setMaxValue:, setMinValue:  Turn the check on, too.
  void setMaxValue(std::int32_t value) noexcept;
  std::int32_t maxValue() const noexcept { return mMaxValue; }
  void setMinValue(std::int32_t value) noexcept;
  std::int32_t minValue() const noexcept { return mMinValue; }
  // setValidityMaxValue:, setValidityMinValue:  Whether the limit is checked.
  void setValidityMaxValue(bool isChecked) noexcept { mIsValidityMaxValue = isChecked; }
  bool isValidityMaxValue() const noexcept { return mIsValidityMaxValue; }
  void setValidityMinValue(bool isChecked) noexcept { mIsValidityMinValue = isChecked; }
  bool isValidityMinValue() const noexcept { return mIsValidityMinValue; }

  // The forbidden list: strings that may not be typed as one piece. Strings are compared unit by
  // unit, so that a composed letter is not the decomposed one.
  // addInvalidCharacter:  Nothing is ignored.
  void addInvalidCharacter(const std::optional<std::string>& string) noexcept;
  // removeInvalidCharacter:  Every entry that equals the string.
  void removeInvalidCharacter(const std::optional<std::string>& string) noexcept;
  // isInvalidCharacter:  Whether the whole string is an entry.
  bool isInvalidCharacter(const std::optional<std::string>& string) const noexcept;

  // stringForObjectValue:  The value by the format string; its leading integer, where the style is
  // a number's and the format has no "%@". Nothing without a format string.
  std::optional<std::string> stringForObjectValue(const std::string& object) noexcept override;
  std::optional<std::string> stringForObjectValue(int object) noexcept;
  std::optional<std::string> stringForObjectValue(const Describable* object) noexcept;

  // Gives what stringForObjectValue: says of the string; true always, and never a description.
  bool getObjectValue(std::optional<std::string>* object, const std::optional<std::string>& string,
                      std::string* errorDescription) noexcept override;

  // Never changes the proposed text or selection and never gives a description. A surrogate that
  // has lost its other half is in no encoding: styles that check encodings refuse it, others count
  // the text in characters. Where it is what a notification is about, it is U+FFFD there.
  bool isPartialStringValid(std::optional<std::u16string>* partialString,
                            TextRange* proposedSelectedRange, const std::u16string& originalString,
                            TextRange originalSelectedRange,
                            std::u16string* errorDescription) noexcept override;

 private:
  // Beeps and posts the notification; its object is the character, where there is one.
  void refuse(const std::string& notification,
              const std::optional<std::string>& character) const noexcept;

  // The fields, in the order of the platform's class.
  std::optional<std::string> mFormatString;
  std::int32_t mTextStyle = 0;
  std::int32_t mMaxLength = 0;
  bool mIsValidityMaxValue = false;
  bool mIsValidityMinValue = false;
  std::int32_t mMaxValue = 0;
  std::int32_t mMinValue = 0;
  std::shared_ptr<const void> mObject;
  std::optional<std::vector<std::string>> mInvalidCaracters;  // the platform's spelling
  std::shared_ptr<const CalendarDate> mDate;
  std::shared_ptr<const PropertyList> mLocale;

  NotificationObject mObjectIdentity;  // what observers know the notification object by
};

}  // namespace cutline
