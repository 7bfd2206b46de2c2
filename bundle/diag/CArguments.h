// The arguments of a C call as the typed list that a safe format takes.
#pragma once

#include <cstdarg>
#include <string_view>
#include <vector>

#include "bundle/format/FormatArguments.h"

namespace cutline {

// Takes what the format's conversions name off the list. Texts are borrowed, and read no further
// than a precision says; a text of wide characters is taken and prints "(null)".
std::vector<FormatArgument> argumentsOf(std::string_view format, va_list list);

}  // namespace cutline
