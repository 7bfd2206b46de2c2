// Turns the byte strings of PPD records into text and text into numbers, as the panel reads them.
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

// The leading integer of the text, after blanks and an optional sign; 0 when there is none; clamped
// to 32 bits.
int integerValue(std::string_view text) noexcept;

}  // namespace cutline
