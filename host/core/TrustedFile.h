// Files and directories that only root or the running user can have put there.
#pragma once

#include <string>
#include <utility>

#include "base/Result.h"

namespace cutline {

// An open descriptor, closed with its owner.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) noexcept : mDescriptor(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : mDescriptor(std::exchange(other.mDescriptor, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(mDescriptor, other.mDescriptor);
    return *this;
  }
  ~FileDescriptor();

  int get() const noexcept { return mDescriptor; }
  // Gives the descriptor away; it is not closed here any more.
  int release() noexcept { return std::exchange(mDescriptor, -1); }

 private:
  int mDescriptor;
};

enum class FileKind { directory, regular };

// Opens for reading, and refuses what is of another kind, belongs to anybody but root and the
// running user, or can be written by group or others. The check is made on the open descriptor.
// The error names the path and the reason.
Result<FileDescriptor> openTrusted(const std::string& path, FileKind kind);
// The same for an entry of an open directory; a symbolic link is refused. `shownPath` names the
// directory in errors.
Result<FileDescriptor> openTrustedIn(const FileDescriptor& directory, const std::string& name,
                                     FileKind kind, const std::string& shownPath);

}  // namespace cutline
