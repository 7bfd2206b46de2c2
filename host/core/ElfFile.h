// Files of code, before they are loaded.
#pragma once

#include <string>

#include "base/FileDescriptor.h"

namespace cutline {

// Why the file cannot be loaded: it is no code of this machine's kind, or not whole, so that the
// loader would map what is not there and the program would end at the first touch. Empty when it
// can.
std::string reasonAgainstCode(const FileDescriptor& file);

}  // namespace cutline
