// Commands at the virtual printer.
#pragma once

#include <unistd.h>

#include "samples/printer/StripJob.h"
#include "tests/composition/MemoryFile.h"

namespace cutline::fuzz {

// Whether the printer takes them all in; nothing is stored.
inline bool isPrinted(const test::MemoryFile& commands) {
  ::lseek(commands.descriptor(), 0, SEEK_SET);
  printer::CommandReader reader(commands.descriptor());
  printer::StripJob job({}, 0);
  const volatile int isCancelled = 0;
  return job.read(reader, isCancelled);
}

}  // namespace cutline::fuzz
