// Private files that go with their owners.
#pragma once

#include <string>

#include "base/FileDescriptor.h"
#include "base/Result.h"

namespace cutline {

// A file in the temporary directory that only its user may read. It has no name there, so that it
// goes with its owner however that ends.
class TemporaryFile {
 public:
  // An empty file. The error names the path and the system's reason.
  static Result<TemporaryFile> make();

  // How this process opens it anew, as long as this object lives.
  const std::string& path() const noexcept { return mPath; }
  // Open for reading and writing as long as this object lives; no program that is started gets it.
  int descriptor() const noexcept { return mDescriptor.get(); }

 private:
  TemporaryFile(std::string path, FileDescriptor descriptor) noexcept
      : mPath(std::move(path)), mDescriptor(std::move(descriptor)) {}

  std::string mPath;
  FileDescriptor mDescriptor;
};

// A folder that only its user may enter; the owner's end removes it with what is in it.
class TemporaryFolder {
 public:
  static Result<TemporaryFolder> make();
  TemporaryFolder(TemporaryFolder&& other) noexcept;
  TemporaryFolder& operator=(TemporaryFolder&& other) noexcept;
  ~TemporaryFolder();

  const std::string& path() const noexcept { return mPath; }

 private:
  explicit TemporaryFolder(std::string path) noexcept : mPath(std::move(path)) {}
  std::string mPath;  // empty for one that was moved away
};

}  // namespace cutline
