// Texts from outside, as a terminal may get them.
#pragma once

#include <string>
#include <string_view>

namespace cutline {

// The text in one line that does nothing but be read: what a terminal would obey, the ends of lines
// and bytes that are no UTF-8 are written as \n, \x1b or \u202e.
std::string visible(std::string_view text);

// Whether a text can be sent as it is: one line of UTF-8 without control characters. Servers write
// what they get into logs, and filters get it in one line.
bool isPlainLine(std::string_view text);

// At most this many bytes, without half a character; "..." stands for the rest.
std::string shortened(std::string_view text, std::size_t most);

}  // namespace cutline
