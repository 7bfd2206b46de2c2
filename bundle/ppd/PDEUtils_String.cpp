// The string group of PDEUtilsMethod13.
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "bundle/ppd/text_bytes.h"
#include "platform/ports/Platform.h"

namespace cutline {

std::size_t PDEUtilsMethod13::stringLengthConvertedToEncoding(
    const std::optional<std::string>& string) noexcept {
  const TextEncodings* encodings = currentPlatform().textEncodings;
  if (!string || !encodings) return 0;
  if (const auto bytes = encodings->encode(*string, TextEncoding::system)) return bytes->size();
  for (const TextEncoding encoding : encodings->availableStringEncodings()) {
    if (const auto bytes = encodings->encode(*string, encoding)) return bytes->size();
  }
  return 0;
}

bool PDEUtilsMethod13::scanString(const std::string& text, const std::string& pattern) noexcept {
  return !pattern.empty() && text.find(pattern) != std::string::npos;
}

std::optional<std::string> PDEUtilsMethod13::deleteString(const std::string& text,
                                                          const std::string& pattern) noexcept {
  if (!scanString(text, pattern)) return std::nullopt;
  std::string rest = text;
  rest.erase(rest.find(pattern), pattern.size());
  return rest;
}

}  // namespace cutline
