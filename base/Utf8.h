// What in a run of bytes is a character of UTF-8. Bytes that could have begun one and are none
// count as one character together, and so does an encoded surrogate.
#pragma once

#include <cstdint>
#include <string_view>

namespace cutline {

// Takes the character at the start off the bytes, which are not empty. Negative when it is none.
std::int32_t takeCharacter(std::string_view& bytes) noexcept;

// Whether every byte is part of a character.
bool isUtf8(std::string_view bytes) noexcept;

// The bytes without the character that is cut off at their end, if one is.
std::string_view withoutCutCharacter(std::string_view bytes) noexcept;

}  // namespace cutline
