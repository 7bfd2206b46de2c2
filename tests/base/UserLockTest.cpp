#include <gtest/gtest.h>

#include <cstdlib>

#include "base/TemporaryFile.h"
#include "base/UserLock.h"

namespace cutline {
namespace {

class UserLock : public testing::Test {
 protected:
  UserLock() { setenv("XDG_RUNTIME_DIR", mFolder.path().c_str(), 1); }
  ~UserLock() override { unsetenv("XDG_RUNTIME_DIR"); }
  const TemporaryFolder mFolder = std::move(*TemporaryFolder::make());
};

TEST_F(UserLock, IsHeldByOneAtATime) {
  Result<FileDescriptor> first = takeUserLock("job-7");
  ASSERT_TRUE(first) << first.error().message;
  ASSERT_TRUE(*first);
  const Result<FileDescriptor> second = takeUserLock("job-7");
  ASSERT_TRUE(second);
  EXPECT_FALSE(*second) << "it is taken";
  EXPECT_TRUE(*takeUserLock("job-8")) << "another name is another lock";
  *first = FileDescriptor();
  const FileDescriptor again = std::move(*takeUserLock("job-7"));
  EXPECT_TRUE(again);
}

TEST_F(UserLock, NamesThePathWhereThereCanBeNone) {
  setenv("XDG_RUNTIME_DIR", "/proc/nosuch", 1);
  const Result<FileDescriptor> lock = takeUserLock("job-7");
  ASSERT_FALSE(lock);
  EXPECT_NE(lock.error().message.find("/proc/nosuch/cutline/job-7.lock"), std::string::npos);
}

}  // namespace
}  // namespace cutline
