#include "base/FileDescriptor.h"

#include <unistd.h>

#include "base/Uninterrupted.h"

namespace cutline {

FileDescriptor::~FileDescriptor() {
  if (mDescriptor >= 0) ::close(mDescriptor);
}

bool writeAll(int descriptor, const void* bytes, std::size_t size) noexcept {
  const auto* from = static_cast<const char*>(bytes);
  while (size > 0) {
    const ssize_t written = uninterrupted([&] { return ::write(descriptor, from, size); });
    if (written <= 0) return false;
    from += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

}  // namespace cutline
