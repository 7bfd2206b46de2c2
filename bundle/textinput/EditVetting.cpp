#include "bundle/textinput/EditVetting.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Utf16.h"
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "bundle/ppd/text_bytes.h"

namespace cutline {
namespace {

// The text as UTF-8; nothing when a surrogate in it has lost its other half.
std::optional<std::string> wholeText(std::u16string_view text) {
  if (!isWellFormedUtf16(text)) return std::nullopt;
  return utf8FromUtf16(text);
}

std::optional<std::string> bytesOf(std::u16string_view text, TextEncoding encoding) {
  const auto utf8 = wholeText(text);
  return utf8 ? encodedText(*utf8, encoding) : std::nullopt;
}

// In bytes of the system's encoding; in characters when it isn't in that.
std::size_t lengthOf(std::u16string_view text) {
  const auto bytes = bytesOf(text, TextEncoding::system);
  return bytes ? bytes->size() : text.size();
}

}  // namespace

EditVetting::EditVetting(const PDEFormatter& formatter, const std::u16string& proposed,
                         std::u16string_view typed, const std::u16string& original) noexcept
    : mFormatter(formatter),
      mStyle(textStyle(formatter.textStyle())),
      mTyped(typed),
      mLength(lengthOf(proposed)),
      mIsUnsuitable(isUnsuitable()) {
  if (!mStyle.isNumber) return;
  mIsPointRefused =
      mStyle.hasOneDecimalPoint && PDEUtilsMethod13::scanString(utf8FromUtf16(original), ".");
  mIsNumberInLimits = isValueInLimits(proposed);
}

bool EditVetting::isUnsuitable() const noexcept {
  if (mStyle.isEncodingChecked && !bytesOf(mTyped, TextEncoding::macRoman)) return true;
  return mFormatter.isInvalidCharacter(wholeText(mTyped));
}

const char* EditVetting::notification() const noexcept {
  if (mIsUnsuitable || isTooLong()) return kInvalidCharacterNotification;
  if (!mStyle.isEncodingChecked) return nullptr;
  if (!bytesOf(mTyped, TextEncoding::ascii)) return kInvalidCharacterNotification;
  const char* last = nullptr;
  for (const char16_t c : mTyped) {
    if (const char* name = notificationFor(c)) last = name;
  }
  return last;
}

std::optional<std::string> EditVetting::offendingCharacter() const noexcept {
  if (!mIsUnsuitable) return std::nullopt;
  // What is unsuitable as a whole is so at each of its characters, and the last one counts.
  return utf8FromUtf16(mTyped.substr(mTyped.size() - 1));
}

bool EditVetting::isTooLong() const noexcept {
  return mFormatter.maxLength() != 0 && std::cmp_greater(mLength, mFormatter.maxLength());
}

bool EditVetting::isValueInLimits(const std::u16string& proposed) const noexcept {
  // A number that may still grow is not compared: its next digit may bring it in.
  const bool isComplete =
      mFormatter.maxLength() == 0 || std::cmp_equal(mLength, mFormatter.maxLength());
  if (!isComplete) return true;
  const int value = leadingInteger(utf8FromUtf16(proposed));
  if (mFormatter.isValidityMaxValue() && mFormatter.maxValue() < value) return false;
  return !mFormatter.isValidityMinValue() || mFormatter.minValue() <= value;
}

const char* EditVetting::notificationFor(char16_t c) const noexcept {
  if (c == u'.' && mIsPointRefused) return kInvalidCharacterNotification;
  if (!mStyle.accepted.contains(c)) return kInvalidCharacterNotification;
  return mIsNumberInLimits ? nullptr : kFormatErrorNotification;
}

}  // namespace cutline
