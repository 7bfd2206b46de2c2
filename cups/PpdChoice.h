// The choices of a PPD's option as users type them and as the server takes them, custom values too.
#pragma once

#include <cups/ppd.h>

#include <string>

#include "base/Result.h"

namespace cutline {

// What is marked of the option, custom choices with their values; several choices stand with commas
// where an option takes them. Empty when nothing is marked.
std::string markedText(ppd_file_t* ppd, const ppd_option_t& option);

// Whether nothing else than the PPD's default is marked of the option. Never of a custom choice: it
// may have other values than by default.
bool isAtDefault(const ppd_option_t& option);

// The choice as the PPD spells it; a text that is none of its choices, such as a custom value,
// stays as it is. Several choices stand with commas where an option takes them.
std::string spelledChoice(const ppd_option_t& option, const std::string& choice);

// An error that lists the choices, or the printer's limits for a custom size, when the option does
// not have the choice.
Result<Done> checkChoiceOf(ppd_file_t* ppd, const ppd_option_t& option, const std::string& choice);

// Takes all marks of an option away.
void unmark(ppd_file_t* ppd, ppd_option_t& option);

// Marks several choices in place of all others, where the option takes them and the text names them
// with commas; libcups takes such a text for the name of one choice. No for any other text.
bool markList(ppd_file_t* ppd, const std::string& keyword, const std::string& choice);

}  // namespace cutline
