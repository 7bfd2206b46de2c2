#include "platform/Utf16.h"

#include <cstddef>
#include <iterator>

namespace cutline {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstBeyondOneUnit = 0x10000;
constexpr char32_t kLast = 0x10FFFF;
constexpr char32_t kFirstHigh = 0xD800;
constexpr char32_t kFirstLow = 0xDC00;

constexpr bool isHigh(char32_t unit) noexcept { return unit >> 10U == kFirstHigh >> 10U; }
constexpr bool isLow(char32_t unit) noexcept { return unit >> 10U == kFirstLow >> 10U; }

// How many bytes a character has, by the bits that its first byte begins with, and the least that
// is written with as many.
struct Form {
  unsigned char mask, bits;
  std::size_t length;
  char32_t least;
};
constexpr Form kForms[] = {{0x80, 0x00, 1, 0},
                           {0xE0, 0xC0, 2, 0x80},
                           {0xF0, 0xE0, 3, 0x800},
                           {0xF8, 0xF0, 4, kFirstBeyondOneUnit}};

// Takes the character at the start off the text, which is not empty. A surrogate without its other
// half is taken as it is.
char32_t takeCharacter(std::u16string_view& units) noexcept {
  const char32_t first = units.front();
  const bool isPair = isHigh(first) && units.size() > 1 && isLow(units[1]);
  const char32_t second = isPair ? units[1] : 0;
  units.remove_prefix(isPair ? 2 : 1);
  if (!isPair) return first;
  return kFirstBeyondOneUnit + ((first - kFirstHigh) << 10U) + (second - kFirstLow);
}

// The bits that the bytes behind the first carry; beyond kLast when one is missing.
char32_t value(const Form& form, std::string_view bytes) noexcept {
  if (bytes.size() < form.length) return kLast + 1;
  char32_t character =
      static_cast<unsigned char>(bytes[0]) & static_cast<unsigned char>(~form.mask);
  for (std::size_t i = 1; i < form.length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if ((byte & 0xC0U) != 0x80U) return kLast + 1;
    character = character << 6U | (byte & 0x3FU);
  }
  return character;
}

// Takes the character at the start off the bytes, which are not empty; a byte that begins none is
// taken alone.
char32_t takeCharacter(std::string_view& bytes) noexcept {
  const auto first = static_cast<unsigned char>(bytes.front());
  for (const Form& form : kForms) {
    if ((first & form.mask) != form.bits) continue;
    const char32_t character = value(form, bytes);
    if (character < form.least || character > kLast) break;
    if (isHigh(character) || isLow(character)) break;
    bytes.remove_prefix(form.length);
    return character;
  }
  bytes.remove_prefix(1);
  return kReplacement;
}

void append(std::string& bytes, char32_t character) {
  const Form* form = kForms;
  while (form != std::end(kForms) - 1 && character >= (form + 1)->least) ++form;
  const auto shift = 6 * (form->length - 1);
  bytes += static_cast<char>(form->bits | character >> shift);
  for (std::size_t i = 1; i < form->length; ++i) {
    bytes += static_cast<char>(0x80U | (character >> (shift - 6 * i) & 0x3FU));
  }
}

void append(std::u16string& units, char32_t character) {
  if (character < kFirstBeyondOneUnit) {
    units += static_cast<char16_t>(character);
    return;
  }
  const char32_t rest = character - kFirstBeyondOneUnit;
  units += static_cast<char16_t>(kFirstHigh + (rest >> 10U));
  units += static_cast<char16_t>(kFirstLow + (rest & 0x3FFU));
}

}  // namespace

std::string utf8FromUtf16(std::u16string_view units) {
  std::string bytes;
  bytes.reserve(units.size());
  while (!units.empty()) {
    const char32_t character = takeCharacter(units);
    append(bytes, isHigh(character) || isLow(character) ? kReplacement : character);
  }
  return bytes;
}

std::u16string utf16FromUtf8(std::string_view bytes) {
  std::u16string units;
  units.reserve(bytes.size());
  while (!bytes.empty()) append(units, takeCharacter(bytes));
  return units;
}

bool isWellFormedUtf16(std::u16string_view units) noexcept {
  while (!units.empty()) {
    const char32_t character = takeCharacter(units);
    if (isHigh(character) || isLow(character)) return false;
  }
  return true;
}

}  // namespace cutline
