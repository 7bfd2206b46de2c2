#include "bundle/ppd/text_bytes.h"

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

}  // namespace cutline
