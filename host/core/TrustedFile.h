// Files and directories that only root or the running user can have put there.
#pragma once

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

enum class FileKind { directory, regular };

// Opens an entry of an open directory for reading, and refuses a symbolic link and what is of
// another kind, belongs to anybody but root and the running user, or can be written by group or
// others. The check is made on the open descriptor. `shownPath` names the directory in errors,
// which name the path and the reason.
Result<FileDescriptor> openTrustedIn(const FileDescriptor& directory, const std::string& name,
                                     FileKind kind, const std::string& shownPath);

// A folder that nobody else can put another into the place of: it may be trusted itself, and those
// above it belong to root or the running user, and not everybody can write them, but for the sticky
// ones, where each removes his own entries alone. A group may, as below /usr/local. Walked to from
// the root, each on the open descriptor of the one above; `path` is an absolute one without links.
Result<FileDescriptor> openTrustedFolder(const std::string& path);

}  // namespace cutline
