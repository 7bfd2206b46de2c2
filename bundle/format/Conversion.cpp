#include "bundle/format/Conversion.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace cutline {
namespace {

template <typename Integer>
constexpr int kBitsOf = static_cast<int>(sizeof(Integer)) * CHAR_BIT;

struct Length {
  std::string_view letters;
  int bits;
};
// The longer spelling before its own beginning.
constexpr Length kLengths[] = {
    {"hh", kBitsOf<char>},       {"h", kBitsOf<short>},          {"ll", kBitsOf<long long>},
    {"l", kBitsOf<long>},        {"q", kBitsOf<long long>},      {"j", kBitsOf<std::intmax_t>},
    {"z", kBitsOf<std::size_t>}, {"t", kBitsOf<std::ptrdiff_t>}, {"L", kBitsOf<long long>},
};

// Takes the character off the text, if it is the first.
bool take(std::string_view& text, char character) noexcept {
  if (text.empty() || text.front() != character) return false;
  text.remove_prefix(1);
  return true;
}

bool takeFlag(std::string_view& text, Conversion& conversion) noexcept {
  constexpr char kGrouped = '\'';  // says nothing in the "C" locale
  if (take(text, kGrouped)) return true;
  for (const ConversionFlag& flag : kConversionFlags) {
    if (!take(text, flag.letter)) continue;
    conversion.*flag.field = true;
    return true;
  }
  return false;
}

// The digits at the start of the text, 0 without any; more than an integer holds is its largest.
int takeNumber(std::string_view& text) noexcept {
  constexpr int kLargest = std::numeric_limits<int>::max();
  int number = 0;
  while (!text.empty() && text.front() >= '0' && text.front() <= '9') {
    const int digit = text.front() - '0';
    number = number > (kLargest - digit) / 10 ? kLargest : number * 10 + digit;
    text.remove_prefix(1);
  }
  return number;
}

void takeWidth(std::string_view& text, Conversion& conversion, ArgumentReader& arguments) noexcept {
  if (!take(text, '*')) {
    conversion.width = takeNumber(text);
    return;
  }
  const int width = arguments.nextNumber().value_or(0);
  if (width < 0) conversion.leftAligned = true;
  // The smallest integer has no positive counterpart.
  conversion.width = width < 0 ? -std::max(width, -std::numeric_limits<int>::max()) : width;
}

void takePrecision(std::string_view& text, Conversion& conversion,
                   ArgumentReader& arguments) noexcept {
  if (!take(text, '.')) return;
  conversion.precision = take(text, '*') ? arguments.nextNumber() : takeNumber(text);
  if (conversion.precision.value_or(0) < 0) conversion.precision.reset();
}

void takeLength(std::string_view& text, Conversion& conversion) noexcept {
  for (const Length& length : kLengths) {
    if (!text.starts_with(length.letters)) continue;
    text.remove_prefix(length.letters.size());
    conversion.bits = length.bits;
    return;
  }
}

}  // namespace

Conversion readConversion(std::string_view& format, ArgumentReader& arguments) noexcept {
  const std::string_view start = format;
  Conversion conversion;
  format.remove_prefix(1);
  while (takeFlag(format, conversion)) continue;
  takeWidth(format, conversion, arguments);
  takePrecision(format, conversion, arguments);
  takeLength(format, conversion);
  if (!format.empty()) {
    conversion.type = format.front();
    format.remove_prefix(1);
  }
  conversion.spelling = start.substr(0, start.size() - format.size());
  return conversion;
}

}  // namespace cutline
