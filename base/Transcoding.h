// Text from one encoding into another, by the system's converters (iconv).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cutline {

// Nothing where an encoding is not known, where the bytes are not text of the first one, and where
// the second one lacks a character: nothing is replaced. The names are those of iconv_open, without
// the words that ask it to replace.
std::optional<std::string> transcoded(std::string_view text, const std::string& from,
                                      const std::string& to);

}  // namespace cutline
