#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <thread>

#include "base/FileDescriptor.h"

namespace cutline {
namespace {

bool isOpen(int descriptor) { return ::fcntl(descriptor, F_GETFD) >= 0; }

TEST(FileDescriptor, IsClosedWithItsLastOwner) {
  const int number = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  {
    FileDescriptor first(number);
    EXPECT_TRUE(first);
    const FileDescriptor second = std::move(first);
    EXPECT_EQ(second.get(), number);
    EXPECT_TRUE(isOpen(number));
  }
  EXPECT_FALSE(isOpen(number));
}

TEST(FileDescriptor, IsNotClosedWhenItWasGivenAway) {
  FileDescriptor owner(::open("/dev/null", O_RDONLY | O_CLOEXEC));
  const int number = owner.release();
  EXPECT_FALSE(owner);
  EXPECT_TRUE(isOpen(number));
  ::close(number);
}

// More than a pipe holds at once.
TEST(WriteAll, WritesWhatTheSystemTakesInParts) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const FileDescriptor input(ends[0]);
  FileDescriptor output(ends[1]);
  const std::string text(1U << 20U, 'x');
  bool isWritten = false;
  std::thread writer([&] {
    isWritten = writeAll(output.get(), text.data(), text.size());
    output = FileDescriptor();
  });
  std::string got(4096, '\0');
  std::size_t total = 0;
  for (ssize_t count = 0; (count = ::read(input.get(), got.data(), got.size())) > 0;)
    total += static_cast<std::size_t>(count);
  writer.join();
  EXPECT_TRUE(isWritten);
  EXPECT_EQ(total, text.size());
}

TEST(WriteAll, SaysNoWhenNothingMoreIsTaken) {
  const FileDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
  ASSERT_TRUE(full);
  EXPECT_FALSE(writeAll(full.get(), "x", 1));
}

}  // namespace
}  // namespace cutline
