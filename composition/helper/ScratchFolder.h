// Room for the files that an interpreter of documents keeps while it runs.
#pragma once

#include <sys/types.h>

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

// A folder that is gone when this process and those that got `tie` have ended, however they end. A
// process that cannot be killed along with them looks after that. For processes of one thread.
class ScratchFolder {
 public:
  static Result<ScratchFolder> make();
  ScratchFolder(ScratchFolder&&) noexcept = default;
  ~ScratchFolder();

  const std::string& path() const noexcept { return mPath; }
  // Closed when a program is started; a copy of it keeps the folder.
  int tie() const noexcept { return mTie.get(); }

 private:
  ScratchFolder(std::string path, FileDescriptor tie, pid_t keeper) noexcept;
  std::string mPath;
  FileDescriptor mTie;
  pid_t mKeeper;
};

}  // namespace cutline
