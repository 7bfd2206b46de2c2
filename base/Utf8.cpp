#include "base/Utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>

namespace cutline {
namespace {

// The bytes of an encoded surrogate, or of what is left of one, at the start of the bytes.
std::size_t surrogateLength(std::string_view bytes) noexcept {
  constexpr std::size_t kWhole = 3;
  if (!bytes.starts_with('\xED')) return 0;
  std::size_t length = 1;
  while (length < kWhole && length < bytes.size() && U8_IS_TRAIL(bytes[length])) ++length;
  return length;
}

}  // namespace

std::int32_t takeCharacter(std::string_view& bytes) noexcept {
  std::size_t taken = 0;
  UChar32 character = 0;
  U8_NEXT(bytes, taken, bytes.size(), character);
  if (character < 0) taken = std::max(taken, surrogateLength(bytes));
  bytes.remove_prefix(taken);
  return character;
}

bool isUtf8(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    if (takeCharacter(bytes) < 0) return false;
  }
  return true;
}

std::string_view withoutCutCharacter(std::string_view bytes) noexcept {
  // Signed: the macro counts back beyond the start and compares then.
  auto length = static_cast<std::ptrdiff_t>(bytes.size());
  U8_TRUNCATE_IF_INCOMPLETE(bytes, 0, length);
  return bytes.substr(0, static_cast<std::size_t>(length));
}

}  // namespace cutline
