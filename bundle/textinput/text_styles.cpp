#include "bundle/textinput/text_styles.h"

#include <cstddef>
#include <iterator>

namespace cutline {
namespace {

constexpr CharacterSet kAscii = CharacterSet::range('\x00', '\x7F');
constexpr CharacterSet kPrintable = CharacterSet::range(' ', '~');
constexpr CharacterSet kDigits = CharacterSet::range('0', '9');
constexpr CharacterSet kLettersAndDigits =
    CharacterSet::range('A', 'Z') | CharacterSet::range('a', 'z') | kDigits;
constexpr CharacterSet kCodabar = kDigits | CharacterSet("$+-./:");

constexpr TextStyle kAnyAscii = {.accepted = kAscii};

// By number.
constexpr TextStyle kStyles[] = {
    {.accepted = kAscii, .isEncodingChecked = false},
    kAnyAscii,
    {.accepted = kDigits, .isNumber = true},
    kAnyAscii,
    {.accepted = kDigits | CharacterSet("."), .isNumber = true, .hasOneDecimalPoint = true},
    kAnyAscii,
    {.accepted = kLettersAndDigits | CharacterSet(" ")},
    {.accepted = kLettersAndDigits | CharacterSet(" $%+-./")},
    {.accepted = kCodabar},
    {.accepted = kCodabar | CharacterSet("ABCDabcd")},
    {.accepted = kPrintable},
    {.accepted = kLettersAndDigits | CharacterSet(" !\"%'()*+,-./:;<=>?_")},
};

}  // namespace

const TextStyle& textStyle(std::int32_t number) noexcept {
  const bool isListed = number >= 0 && static_cast<std::size_t>(number) < std::size(kStyles);
  return isListed ? kStyles[number] : kAnyAscii;
}

}  // namespace cutline
