// Judges what one edit has typed by a formatter's settings. Encodings, the forbidden list and the
// length speak about the typed text or the field as a whole; the style's characters and the value
// are judged a typed character at a time, and the last fault counts.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/text_styles.h"

namespace cutline {

class EditVetting {
 public:
  // All are borrowed. `proposed` is the whole text after the edit, `typed` a part of it that is not
  // empty, `original` the whole text before.
  EditVetting(const PDEFormatter& formatter, const std::u16string& proposed,
              std::u16string_view typed, const std::u16string& original) noexcept;

  // The name of the notification that the edit is refused with; null when it may stand.
  const char* notification() const noexcept;
  // The character that a refusal is about, when the typed text is not in the encodings or is
  // forbidden.
  std::optional<std::string> offendingCharacter() const noexcept;

 private:
  bool isTooLong() const noexcept;
  bool isUnsuitable() const noexcept;
  bool isValueInLimits(const std::u16string& proposed) const noexcept;
  const char* notificationFor(char16_t c) const noexcept;

  const PDEFormatter& mFormatter;
  const TextStyle& mStyle;
  std::u16string_view mTyped;
  std::size_t mLength;            // of the proposed text, in bytes or else in characters
  bool mIsUnsuitable;             // the typed text as a whole: outside Mac Roman, or forbidden
  bool mIsPointRefused = false;   // there is a decimal point already
  bool mIsNumberInLimits = true;  // where the value is compared at all
};

}  // namespace cutline
