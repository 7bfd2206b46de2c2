// Between UTF-8, which texts are kept in, and UTF-16, whose units positions in a text are counted
// in. What cannot be converted becomes U+FFFD: each half of a surrogate pair that has lost the
// other, and each byte that is part of no character.
#pragma once

#include <string>
#include <string_view>

namespace cutline {

std::string utf8FromUtf16(std::u16string_view units);
std::u16string utf16FromUtf8(std::string_view bytes);

// Whether every surrogate has its other half.
bool isWellFormedUtf16(std::u16string_view units) noexcept;

}  // namespace cutline
