// Text that reaches a log or a stream is valid UTF-8, whatever it was made of.
#pragma once

#include <string>
#include <string_view>

namespace cutline {

// The text with "?" for each character that UTF-8 cannot hold: a surrogate, or bytes that are no
// character (as many as could have begun one count as one).
std::string convertibleText(std::string_view text);

}  // namespace cutline
