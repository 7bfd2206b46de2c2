#include "tests/composition/MemoryFile.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace cutline::test {

MemoryFile::MemoryFile(const std::string& bytes) : mFile(::memfd_create("document", MFD_CLOEXEC)) {
  if (!mFile || !writeAll(mFile.get(), bytes.data(), bytes.size()))
    throw std::runtime_error("no file in memory");
  ::lseek(mFile.get(), 0, SEEK_SET);
}

std::string MemoryFile::bytes() const {
  struct stat facts {};
  ::fstat(mFile.get(), &facts);
  std::string bytes(static_cast<std::size_t>(facts.st_size), '\0');
  const ssize_t got = ::pread(mFile.get(), bytes.data(), bytes.size(), 0);
  bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return bytes;
}

}  // namespace cutline::test
