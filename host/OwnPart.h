// Where the parts of the program stand that it begins with, before there is a library to ask.
#pragma once

#include <climits>

namespace cutline {

// PREFIX/lib/cutline/NAME, where this program is PREFIX/bin/PROGRAM, as Installation says it. No
// where that cannot be said. Whether there is such a file is not looked at.
bool findOwnPart(const char* name, char (&path)[PATH_MAX]) noexcept;

}  // namespace cutline
