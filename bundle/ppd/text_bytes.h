// Between the byte strings of PPD records and text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/TextEncodings.h"

namespace cutline {

// The NUL-terminated bytes as UTF-8 text; nothing when there are no bytes, when they are not valid
// in the encoding, or when the platform has no encodings.
std::optional<std::string> decodedText(const char* bytes, TextEncoding encoding) noexcept;

// The text's bytes in the encoding; nothing when it cannot be converted.
std::optional<std::string> encodedText(std::string_view text, TextEncoding encoding) noexcept;

}  // namespace cutline
