#include "platform/ports/TextField.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string_view>

namespace cutline {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

std::string_view withoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text;
}

}  // namespace

TextField::~TextField() = default;

int TextField::intValue() const noexcept {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::string text = stringValue();
  std::string_view number = withoutLeadingBlanks(text);
  const bool negative = number.starts_with('-');
  if (negative || number.starts_with('+')) number.remove_prefix(1);
  // Without its sign: a second one must not be taken for part of the number.
  std::uint64_t value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::invalid_argument) return 0;
  const std::int64_t bound = negative ? -std::int64_t{Limits::min()} : Limits::max();
  const bool tooLong = result.ec == std::errc::result_out_of_range;
  if (tooLong || value > static_cast<std::uint64_t>(bound)) value = bound;
  const auto magnitude = static_cast<std::int64_t>(value);
  return static_cast<int>(negative ? -magnitude : magnitude);
}

TextRange selectionAfterCorrection(std::size_t editedLength, std::size_t caret,
                                   std::size_t correctedLength) noexcept {
  if (editedLength == 0) return {0, correctedLength};
  const std::size_t fromEnd = editedLength - std::min(caret, editedLength);
  return {correctedLength - std::min(fromEnd, correctedLength), 0};
}

}  // namespace cutline
