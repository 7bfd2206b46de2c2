#include "host/core/SpooledDocument.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "base/FileDescriptor.h"

namespace cutline {

namespace {

constexpr std::size_t kBlock = 65536;

std::string systemReason() { return std::strerror(errno); }

// The number of bytes copied.
Result<std::size_t> copyAll(int from, int to, const std::string& path) {
  std::array<char, kBlock> block;
  std::size_t total = 0;
  for (;;) {
    const ssize_t count = ::read(from, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return Error{"cannot read standard input: " + systemReason()};
    if (count == 0) return total;
    if (!writeAll(to, block.data(), static_cast<std::size_t>(count)))
      return Error{path + ": cannot keep the document: " + systemReason()};
    total += static_cast<std::size_t>(count);
  }
}

}  // namespace

Result<std::shared_ptr<SpooledDocument>> SpooledDocument::read(int descriptor) {
  std::error_code ignored;
  std::string path = (std::filesystem::temp_directory_path(ignored) / "cutline-XXXXXX").string();
  const FileDescriptor file(::mkstemp(path.data()));
  if (file.get() < 0) return Error{path + ": cannot keep the document: " + systemReason()};
  const std::shared_ptr<SpooledDocument> document(new SpooledDocument(path));
  const Result<std::size_t> size = copyAll(descriptor, file.get(), path);
  if (!size) return size.error();
  if (*size == 0) return Error{"standard input is empty; there is nothing to print"};
  return document;
}

SpooledDocument::~SpooledDocument() { ::unlink(mPath.c_str()); }

}  // namespace cutline
