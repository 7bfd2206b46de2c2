// The text styles of a formatter: which characters may be typed, and what else is checked.
#pragma once

#include <cstdint>

#include "bundle/textinput/CharacterSet.h"

namespace cutline {

// The style that shows a date, where there is one.
inline constexpr std::int32_t kDateStyle = 5;

struct TextStyle {
  CharacterSet accepted;            // means something only where encodings are checked
  bool isEncodingChecked = true;    // whether text outside Mac Roman or ASCII is refused
  bool isNumber = false;            // whether value limits apply, and integer formats
  bool hasOneDecimalPoint = false;  // whether a "." behind another is refused
};

// The style of that number. Numbers that name none are styles that take every character of ASCII.
const TextStyle& textStyle(std::int32_t number) noexcept;

}  // namespace cutline
