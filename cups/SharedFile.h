// A file of the user's that several programs change.
#pragma once

#include <functional>
#include <string>

#include "base/Result.h"

namespace cutline {

// Gives the file's bytes (none when there is no file) to `change` and puts its answer in their
// place: whole or not at all, with what others have changed until then, and with the file's mode
// and owner. Programs that use this wait for each other, some seconds at most. Folders on the way
// are made. An error names the file and the system's reason; the file is as it was then.
Result<Done> changeSharedFile(const std::string& path,
                              const std::function<std::string(const std::string&)>& change);

}  // namespace cutline
