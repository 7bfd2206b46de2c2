#include "bundle/textinput/PDEFormatter.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/Numbers.h"
#include "bundle/format/SafeFormat.h"
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "bundle/textinput/EditVetting.h"
#include "bundle/textinput/text_styles.h"
#include "platform/lib/CalendarDate.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

constexpr char kObjectFormat[] = "%@";
constexpr char kNoObject[] = "(null)";

// What the user typed to get from one selection to the other; nothing when the edit only deleted,
// and when there is no such part.
std::u16string_view typedText(std::u16string_view proposed, std::size_t from, std::size_t to) {
  if (to <= from || to > proposed.size()) return {};
  return proposed.substr(from, to - from);
}

}  // namespace

PDEFormatter* PDEFormatter::init() noexcept { return initWithFormatString(std::nullopt); }

PDEFormatter* PDEFormatter::initWithStyle(std::int32_t style) noexcept {
  return initWithFormatString(std::nullopt, style);
}

PDEFormatter* PDEFormatter::initWithFormatString(
    const std::optional<std::string>& string) noexcept {
  setFormatString(string);
  return this;
}

PDEFormatter* PDEFormatter::initWithFormatString(const std::optional<std::string>& string,
                                                 std::int32_t style) noexcept {
  setTextStyle(style);
  return initWithFormatString(string);
}

PDEFormatter* PDEFormatter::initWithCalendarDate(
    std::shared_ptr<const CalendarDate> date, std::shared_ptr<const PropertyList> locale) noexcept {
  setTextStyle(kDateStyle);
  setCalendarDate(std::move(date));
  setCalendarLocale(std::move(locale));
  return this;
}

void PDEFormatter::setFormatString(const std::optional<std::string>& string) noexcept {
  mFormatString = string.value_or(kObjectFormat);
}

void PDEFormatter::setCalendarDate(std::shared_ptr<const CalendarDate> date) noexcept {
  mDate = std::move(date);
}

void PDEFormatter::setCalendarLocale(std::shared_ptr<const PropertyList> locale) noexcept {
  mLocale = std::move(locale);
}

void PDEFormatter::setNotificationObject(std::shared_ptr<const void> object) noexcept {
  mObject = std::move(object);
  mObjectIdentity = mObject ? NotificationObject(mObject.get()) : NotificationObject();
}

void PDEFormatter::setNotificationIdentity(NotificationObject identity) noexcept {
  mObject.reset();
  mObjectIdentity = std::move(identity);
}

void PDEFormatter::setMaxValue(std::int32_t value) noexcept {
  mMaxValue = value;
  setValidityMaxValue(true);
}

void PDEFormatter::setMinValue(std::int32_t value) noexcept {
  mMinValue = value;
  setValidityMinValue(true);
}

void PDEFormatter::addInvalidCharacter(const std::optional<std::string>& string) noexcept {
  if (!string) return;
  if (!mInvalidCaracters) mInvalidCaracters.emplace();
  mInvalidCaracters->push_back(*string);
}

void PDEFormatter::removeInvalidCharacter(const std::optional<std::string>& string) noexcept {
  if (string && mInvalidCaracters) std::erase(*mInvalidCaracters, *string);
}

bool PDEFormatter::isInvalidCharacter(const std::optional<std::string>& string) const noexcept {
  if (!string || !mInvalidCaracters) return false;
  return std::ranges::find(*mInvalidCaracters, *string) != mInvalidCaracters->end();
}

std::optional<std::string> PDEFormatter::stringForObjectValue(const std::string& object) noexcept {
  if (mTextStyle == kDateStyle && mDate) {
    return mDate->descriptionWithCalendarFormat(mFormatString, mLocale.get());
  }
  if (!mFormatString) return std::nullopt;
  const bool takesObject = PDEUtilsMethod13::scanString(*mFormatString, kObjectFormat);
  if (cutline::textStyle(mTextStyle).isNumber && !takesObject) {
    return safeFormat(*mFormatString, {leadingInteger(object)});
  }
  return safeFormat(*mFormatString, {object});
}

std::optional<std::string> PDEFormatter::stringForObjectValue(int object) noexcept {
  return stringForObjectValue(std::to_string(object));
}

std::optional<std::string> PDEFormatter::stringForObjectValue(const Describable* object) noexcept {
  return stringForObjectValue(object ? object->description() : kNoObject);
}

bool PDEFormatter::getObjectValue(std::optional<std::string>* object,
                                  const std::optional<std::string>& string,
                                  std::string* /*errorDescription*/) noexcept {
  if (object && string) *object = stringForObjectValue(*string);
  return true;
}

bool PDEFormatter::isPartialStringValid(std::optional<std::u16string>* partialString,
                                        TextRange* proposedSelectedRange,
                                        const std::u16string& originalString,
                                        TextRange originalSelectedRange,
                                        std::u16string* /*errorDescription*/) noexcept {
  if (!partialString || !*partialString || !proposedSelectedRange) return true;
  const std::u16string& proposed = **partialString;
  const std::u16string_view typed =
      typedText(proposed, originalSelectedRange.location, proposedSelectedRange->location);
  if (typed.empty()) return true;
  const EditVetting vetting(*this, proposed, typed, originalString);
  const char* notification = vetting.notification();
  if (!notification) return true;
  refuse(notification, vetting.offendingCharacter());
  return false;
}

void PDEFormatter::refuse(const std::string& notification,
                          const std::optional<std::string>& character) const noexcept {
  NotificationObject object = mObjectIdentity;
  if (object == NotificationObject()) object = static_cast<const void*>(this);
  if (character) object = *character;
  if (Toolkit* toolkit = currentPlatform().toolkit) toolkit->beep();
  NotificationCenter::defaultCenter().postNotificationName(notification, object);
}

}  // namespace cutline
