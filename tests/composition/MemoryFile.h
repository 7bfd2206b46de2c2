// An open file without a name.
#pragma once

#include <string>

#include "base/FileDescriptor.h"

namespace cutline::test {

class MemoryFile {
 public:
  // Throws where there can be none.
  explicit MemoryFile(const std::string& bytes = {});

  int descriptor() const { return mFile.get(); }
  std::string bytes() const;

 private:
  FileDescriptor mFile;
};

}  // namespace cutline::test
