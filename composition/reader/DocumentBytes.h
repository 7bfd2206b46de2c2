// A document's bytes, read from an open file, which stays the caller's.
#pragma once

#include <cstddef>
#include <string>

namespace cutline {

// As the file says, which may change while it is read; 0 where it does not say.
std::size_t sizeOf(int descriptor);

// The file's first bytes, at most so many. Throws a Refusal where they cannot be read.
std::string startOf(int descriptor, std::size_t most);

// All of the file. Throws a Refusal where it is too large to be held in memory, too.
std::string contentsOf(int descriptor);

}  // namespace cutline
