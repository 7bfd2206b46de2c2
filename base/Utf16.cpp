#include "base/Utf16.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace cutline {
namespace {

constexpr UChar32 kReplacement = 0xFFFD;

// Takes the character at the start off the text, which is not empty. A surrogate without its other
// half is taken as it is.
UChar32 takeCharacter(std::u16string_view& units) noexcept {
  std::size_t taken = 0;
  UChar32 character = 0;
  U16_NEXT(units, taken, units.size(), character);
  units.remove_prefix(taken);
  return character;
}

// Takes the character at the start off the bytes, which are not empty; a byte that begins none is
// taken alone.
UChar32 takeOrReplace(std::string_view& bytes) noexcept {
  std::size_t taken = 0;
  UChar32 character = 0;
  U8_NEXT(bytes, taken, bytes.size(), character);
  bytes.remove_prefix(character < 0 ? 1 : taken);
  return character < 0 ? kReplacement : character;
}

void append(std::string& bytes, UChar32 character) {
  std::uint8_t form[U8_MAX_LENGTH];
  std::size_t length = 0;
  U8_APPEND_UNSAFE(form, length, character);
  bytes.append(form, form + length);
}

void append(std::u16string& units, UChar32 character) {
  char16_t form[U16_MAX_LENGTH];
  std::size_t length = 0;
  U16_APPEND_UNSAFE(form, length, character);
  units.append(form, length);
}

}  // namespace

std::string utf8FromUtf16(std::u16string_view units) {
  std::string bytes;
  bytes.reserve(units.size());
  while (!units.empty()) {
    const UChar32 character = takeCharacter(units);
    append(bytes, U_IS_SURROGATE(character) ? kReplacement : character);
  }
  return bytes;
}

std::u16string utf16FromUtf8(std::string_view bytes) {
  std::u16string units;
  units.reserve(bytes.size());
  while (!bytes.empty()) append(units, takeOrReplace(bytes));
  return units;
}

bool isWellFormedUtf16(std::u16string_view units) noexcept {
  while (!units.empty()) {
    const UChar32 character = takeCharacter(units);
    if (U_IS_SURROGATE(character)) return false;
  }
  return true;
}

}  // namespace cutline
