// The values of a format's conversions as text, as the C library prints them in the "C" locale.
#pragma once

#include <string>

#include "bundle/format/Conversion.h"
#include "bundle/format/FormatArguments.h"

namespace cutline {

// The most columns that a width, and the most digits that a precision makes, whatever a format
// says: longer than a line of any log, shorter than what would be felt.
inline constexpr int kMostColumns = 4096;

// Whether a conversion of this letter prints an argument.
bool printsArgument(char type) noexcept;

// The argument as the conversion prints it. One that is missing, null or of another kind than the
// conversion's is "(null)".
std::string printedValue(const Conversion& conversion, const FormatArgument* argument);

}  // namespace cutline
