#include "host/core/SpooledDocument.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "base/FileDescriptor.h"
#include "base/Uninterrupted.h"

namespace cutline {

namespace {

constexpr std::size_t kBlock = 65536;

std::string systemReason() { return std::strerror(errno); }

// The number of bytes copied.
Result<std::size_t> copyAll(int from, int to) {
  std::array<char, kBlock> block;
  std::size_t total = 0;
  for (;;) {
    const ssize_t count = uninterrupted([&] { return ::read(from, block.data(), block.size()); });
    if (count < 0) return Error{"cannot read standard input: " + systemReason()};
    if (count == 0) return total;
    if (!writeAll(to, block.data(), static_cast<std::size_t>(count)))
      return Error{"the document from standard input cannot be kept: " + systemReason()};
    total += static_cast<std::size_t>(count);
  }
}

}  // namespace

Result<std::shared_ptr<SpooledDocument>> SpooledDocument::read(int descriptor) {
  Result<TemporaryFile> file = TemporaryFile::make();
  if (!file) return file.error();
  const Result<std::size_t> size = copyAll(descriptor, file->descriptor());
  if (!size) return size.error();
  if (*size == 0) return Error{"standard input is empty; there is nothing to print"};
  return std::shared_ptr<SpooledDocument>(new SpooledDocument(std::move(*file)));
}

}  // namespace cutline
