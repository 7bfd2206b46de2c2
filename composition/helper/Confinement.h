// What a program may still do while it reads documents that anybody may have made: compute, read
// files, and write what was opened for it before.
#pragma once

#include <cstdint>

namespace cutline {

// What a process may use; 0 for as much as it has.
struct ProcessLimits {
  std::uint64_t memory = 0;    // bytes of address space
  std::uint64_t fileSize = 0;  // bytes, of each file it writes
  unsigned cpuSeconds = 0;
  unsigned files = 0;          // its descriptors are smaller than this
  unsigned wallSeconds = 0;    // SIGALRM ends it then
  bool endsWithParent = true;  // with the thread that started it, to be exact
};

// For a program that reads documents itself: no sockets, no other programs, no signals to others,
// and no file opened for writing, made, renamed or removed; refused with EACCES. Once and for all,
// for every thread. No where the system lacks any of it: then nothing may be read.
bool confine(const ProcessLimits& limits) noexcept;

// Between fork and exec, for an interpreter of documents that keeps files of its own: no sockets
// and no signals to others, and writing below `folder` alone, whose path is given in full.
bool confineInterpreter(const ProcessLimits& limits, const char* folder) noexcept;

}  // namespace cutline
