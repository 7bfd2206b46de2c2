// Files by their numbers.
#pragma once

#include <cstddef>
#include <utility>

namespace cutline {

// An open descriptor, closed with its owner; a negative one is none.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor = -1) noexcept : mDescriptor(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : mDescriptor(std::exchange(other.mDescriptor, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(mDescriptor, other.mDescriptor);
    return *this;
  }
  ~FileDescriptor();

  explicit operator bool() const noexcept { return mDescriptor >= 0; }
  int get() const noexcept { return mDescriptor; }
  // Gives the descriptor away; it is not closed here any more.
  int release() noexcept { return std::exchange(mDescriptor, -1); }

 private:
  int mDescriptor;
};

// Writes all of the bytes, however many the system takes at a time. No, with errno set, when it
// takes no more.
bool writeAll(int descriptor, const void* bytes, std::size_t size) noexcept;

}  // namespace cutline
