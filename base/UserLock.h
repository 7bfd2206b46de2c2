// Locks by name, each held by one process of a user at a time.
#pragma once

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

// Takes the lock: it is held until the descriptor is closed, however the process ends; programs
// that are started do not get it. No descriptor where another process holds it. The name is a
// file's in a folder of the user's own.
Result<FileDescriptor> takeUserLock(const std::string& name);

}  // namespace cutline
