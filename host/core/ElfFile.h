// Files of code, before they are loaded.
#pragma once

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

// Why the file cannot be loaded: it is no code of this machine's kind, or not whole, so that the
// loader would map what is not there and the program would end at the first touch. Empty when it
// can.
std::string reasonAgainstCode(const FileDescriptor& file);

// Loads the very file that was checked, for good, and answers dlopen's handle. The descriptor stays
// open: the dynamic loader knows the library by this name, and would take another file with the
// same number for this one. `flags` are dlopen's, beside those of every load. The error is
// dlopen's.
Result<void*> loadCode(FileDescriptor file, int flags = 0);

}  // namespace cutline
