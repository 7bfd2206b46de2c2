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

// The integer at the start of the text, after blanks and an optional sign; 0 when there is none;
// clamped to 32 bits.
int leadingInteger(std::string_view text) noexcept;

// Takes the number at the start off the text, with "-" before a negative one, in every locale.
// Nothing, and the text as it was, when there is none that a double holds.
std::optional<double> takeNumber(std::string_view& text) noexcept;

}  // namespace cutline
