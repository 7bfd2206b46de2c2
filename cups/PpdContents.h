// The contents of a PPD's file, before libcups reads them.
#pragma once

#include <string>
#include <string_view>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

// Larger ones, unpacked, are refused: the largest PPDs of real printers have about one megabyte.
inline constexpr std::size_t kLargestPpd = 16U << 20U;

// Everything from where the descriptor stands, unpacked where gzip packed it; an error where that
// is too much or damaged. `name` is what errors call the PPD.
Result<std::string> ppdContents(FileDescriptor file, const Sentence& name);

// The same of a regular file; an error for every other kind, which could be without end.
Result<std::string> ppdContents(const std::string& path, const Sentence& name);

// The same of contents that are in memory, at most kLargestPpd of them.
Result<std::string> unpackedPpd(std::string contents, const Sentence& name);

// A new descriptor that reads these contents; none, with errno set, when there is no memory for it.
FileDescriptor memoryFile(std::string_view contents);

Error unopenedPpd(const Sentence& name, Sentence why);

}  // namespace cutline
