#include "platform/ports/Formatter.h"

namespace cutline {

Formatter::~Formatter() = default;

std::string displayedText(Formatter* formatter, const std::string& text) noexcept {
  std::optional<std::string> value;
  if (!formatter || !formatter->getObjectValue(&value, text, nullptr) || !value) return text;
  return formatter->stringForObjectValue(*value).value_or(text);
}

}  // namespace cutline
