#include "bundle/ppd/text_bytes.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/ports/Platform.h"

namespace cutline {

std::optional<std::string> decodedText(const char* bytes, TextEncoding encoding) noexcept {
  const TextEncodings* encodings = currentPlatform().textEncodings;
  if (!bytes || !encodings) return std::nullopt;
  return encodings->decode(bytes, encoding);
}

std::optional<std::string> encodedText(std::string_view text, TextEncoding encoding) noexcept {
  const TextEncodings* encodings = currentPlatform().textEncodings;
  if (!encodings) return std::nullopt;
  return encodings->encode(text, encoding);
}

int integerValue(std::string_view text) noexcept {
  const auto start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);

  constexpr std::int64_t kBeyond32Bits = std::int64_t{1} << 32;
  std::int64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = std::min(value * 10 + (c - '0'), kBeyond32Bits);
  }
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(
      std::clamp<std::int64_t>(negative ? -value : value, Limits::min(), Limits::max()));
}

}  // namespace cutline
