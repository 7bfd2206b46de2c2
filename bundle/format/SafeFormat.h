// Formats text by a format that may come from anywhere: nothing in it reads or writes memory that
// its arguments don't name. Numbers are printed by the C library, by a format made anew of what the
// conversion asks for and the library defines; in the "C" locale, whatever the process's is.
//
// Conversions are those of the C library, %d %i %u %x %X %o %c %s %f %F %e %E %g %G %p %%, with
// flags, width, precision and length modifiers, and "%@" for the description of an object or for a
// text. Texts are UTF-8; width and precision count characters. Integers are cut to the length that
// the conversion names. Beyond that:
//   - an argument that is missing, null or of another kind prints "(null)";
//   - "%n" takes its argument, stores nothing and prints nothing;
//   - a conversion that is unknown, or that the format ends in, stands as it is and takes nothing;
//   - width and precision of a number end at kMostColumns.
#pragma once

#include <string>
#include <string_view>

#include "bundle/format/FormatArguments.h"

namespace cutline {

std::string safeFormat(std::string_view format, FormatArguments arguments);

}  // namespace cutline
