// A private directory that goes, with all that is in it, at the end of a test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace cutline {

class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "cutline-test-XXXXXX").string();
    mPath = ::mkdtemp(pattern.data());
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const std::string& path() const { return mPath; }

 private:
  std::string mPath;
};

}  // namespace cutline
