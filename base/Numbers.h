// Numbers in texts.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace cutline {

// The largest number of copies that a job may have.
inline constexpr int kMostCopies = 9999;

// The whole number that all of the text is, digits with a "-" before a negative one, in every
// locale; nothing for any other text, and for a number that the type cannot hold.
template <typename Number>
std::optional<Number> numberIn(std::string_view text, int base = 10) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

}  // namespace cutline
