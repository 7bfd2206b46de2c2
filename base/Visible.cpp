#include "base/Visible.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "base/Utf8.h"

namespace cutline {

namespace {

struct Range {
  std::int32_t first, last;
};
// Controls, marks that turn the direction of writing or join letters, and what ends a line or a
// paragraph.
constexpr std::array kUnseen = std::to_array<Range>({
    {0x0, 0x1f},
    {0x7f, 0x9f},
    {0xad, 0xad},
    {0x61c, 0x61c},
    {0x180e, 0x180e},
    {0x200b, 0x200f},
    {0x2028, 0x202e},
    {0x2060, 0x206f},
    {0xfeff, 0xfeff},
    {0xfff9, 0xfffb},
    {0xe0000, 0xe0fff},
});

bool isControl(std::int32_t character) {
  return character < ' ' || (character >= 0x7f && character <= 0x9f);
}

bool isUnseen(std::int32_t character) {
  return std::ranges::any_of(kUnseen, [&](const Range& range) {
    return character >= range.first && character <= range.last;
  });
}

std::string escaped(char kind, int digits, unsigned number) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "\\%c%0*x", kind, digits, number);
  return text.data();
}

std::string shownAs(std::int32_t character) {
  constexpr unsigned kByte = 0x100;
  if (character == '\n') return "\\n";
  if (character == '\t') return "\\t";
  const auto number = static_cast<unsigned>(character);
  return number < kByte ? escaped('x', 2, number) : escaped('u', 4, number);
}

std::string bytesOf(std::string_view bytes) {
  std::string shown;
  for (const char byte : bytes) shown += escaped('x', 2, static_cast<unsigned char>(byte));
  return shown;
}

}  // namespace

std::string visible(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const std::string_view before = text;
    const std::int32_t character = takeCharacter(text);
    const std::string_view bytes = before.substr(0, before.size() - text.size());
    if (character < 0)
      shown += bytesOf(bytes);
    else if (isUnseen(character))
      shown += shownAs(character);
    else
      shown += bytes;
  }
  return shown;
}

bool isPlainLine(std::string_view text) {
  while (!text.empty()) {
    const std::int32_t character = takeCharacter(text);
    if (character < 0 || isControl(character)) return false;
  }
  return true;
}

std::string shortened(std::string_view text, std::size_t most) {
  if (text.size() <= most) return std::string(text);
  return std::string(withoutCutCharacter(text.substr(0, most))) + "...";
}

}  // namespace cutline
