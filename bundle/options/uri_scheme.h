// The scheme of a device URI.
#pragma once

#include <string_view>

namespace cutline {

// What stands before the first colon, a letter and then letters, digits, "+", "-" or "."; in the
// case in which it is written. Empty when the URI has no scheme.
std::string_view schemeOfURI(std::string_view uri) noexcept;

}  // namespace cutline
