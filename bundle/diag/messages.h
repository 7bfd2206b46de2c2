// What becomes of a diagnostic message on its way to a log or a stream. Whatever it was made of, it
// arrives as valid UTF-8, and one that fails costs itself and nothing else.
#pragma once

#include <string>
#include <string_view>

#include "bundle/format/FormatArguments.h"

namespace cutline {

// Calls the function; whatever it throws (memory may be short, and a format may ask for much) ends
// here, as nothing is thrown out of the bundle.
template <typename Function>
void quietly(const Function& function) noexcept {
  try {
    function();
  } catch (...) {
  }
}

// The text with "?" for each character that UTF-8 cannot hold: a surrogate, or bytes that are no
// character (as many as could have begun one count as one).
std::string convertibleText(std::string_view text);

// The formatted text (see SafeFormat.h), convertible.
std::string formattedMessage(std::string_view format, FormatArguments arguments);

// One message to the platform's system log; nothing happens on a platform that has none.
void logMessage(std::string_view format, FormatArguments arguments);

}  // namespace cutline
