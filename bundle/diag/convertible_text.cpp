#include "bundle/diag/convertible_text.h"

#include <cstddef>

namespace cutline {
namespace {

// Which bytes begin a character of UTF-8. Every byte behind the second is 80 to BF.
struct Beginning {
  unsigned char firstLow, firstHigh;
  unsigned char secondLow, secondHigh;
  std::size_t length;
  bool isSurrogate = false;
};
constexpr Beginning kBeginnings[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},       {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3}, {0xED, 0xED, 0xA0, 0xBF, 3, true}, {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4},       {0xF4, 0xF4, 0x80, 0x8F, 4},
};

struct Character {
  std::size_t length;
  bool isConvertible;
};

bool isBetween(char byte, unsigned char low, unsigned char high) noexcept {
  const auto value = static_cast<unsigned char>(byte);
  return value >= low && value <= high;
}

const Beginning* beginningOf(std::string_view text) noexcept {
  for (const Beginning& row : kBeginnings) {
    if (text.size() < 2 || !isBetween(text[0], row.firstLow, row.firstHigh)) continue;
    if (isBetween(text[1], row.secondLow, row.secondHigh)) return &row;
  }
  return nullptr;
}

// The character at the start of the text, which is not empty.
Character firstCharacter(std::string_view text) noexcept {
  if (isBetween(text[0], 0x00, 0x7F)) return {1, true};
  const Beginning* beginning = beginningOf(text);
  if (!beginning) return {1, false};
  std::size_t length = 2;
  while (length < beginning->length && length < text.size() && isBetween(text[length], 0x80, 0xBF))
    ++length;
  return {length, length == beginning->length && !beginning->isSurrogate};
}

}  // namespace

std::string convertibleText(std::string_view text) {
  std::string converted;
  converted.reserve(text.size());
  while (!text.empty()) {
    const Character character = firstCharacter(text);
    converted.append(character.isConvertible ? text.substr(0, character.length) : "?");
    text.remove_prefix(character.length);
  }
  return converted;
}

}  // namespace cutline
