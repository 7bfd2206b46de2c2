#include "base/Numbers.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace cutline {

int leadingInteger(std::string_view text) noexcept {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);

  constexpr std::int64_t kBeyond32Bits = std::int64_t{1} << 32;
  std::int64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = std::min(value * 10 + (c - '0'), kBeyond32Bits);
  }
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<int>(
      std::clamp<std::int64_t>(negative ? -value : value, Limits::min(), Limits::max()));
}

std::optional<double> takeNumber(std::string_view& text) noexcept {
  double number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
  return number;
}

}  // namespace cutline
