// Files and directories that only root or the running user can have put there.
#pragma once

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

enum class FileKind { directory, regular };

// Opens for reading, and refuses what is of another kind, belongs to anybody but root and the
// running user, or can be written by group or others. The check is made on the open descriptor.
// The error names the path and the reason.
Result<FileDescriptor> openTrusted(const std::string& path, FileKind kind);
// The same for an entry of an open directory; a symbolic link is refused. `shownPath` names the
// directory in errors.
Result<FileDescriptor> openTrustedIn(const FileDescriptor& directory, const std::string& name,
                                     FileKind kind, const std::string& shownPath);

// The same descriptor where nobody else can put another folder into the place of one above it:
// those belong to root or the running user, and not everybody can write them, but for the sticky
// ones, where each removes his own entries alone. A group may, as below /usr/local. `path` is an
// absolute one without links.
Result<FileDescriptor> belowTrustedFolders(FileDescriptor file, const std::string& path);

}  // namespace cutline
