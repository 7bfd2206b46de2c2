#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "base/TemporaryFile.h"

namespace cutline {
namespace {

TEST(TemporaryFile, IsPrivateAndEmpty) {
  const Result<TemporaryFile> file = TemporaryFile::make();
  ASSERT_TRUE(file);
  struct stat facts {};
  ASSERT_EQ(::stat(file->path().c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 07777U, 0600U);
  EXPECT_EQ(facts.st_size, 0);
  EXPECT_TRUE(::fcntl(file->descriptor(), F_GETFD) & FD_CLOEXEC);
}

TEST(TemporaryFile, IsOpenedAnewButHasNoNameInItsFolder) {
  Result<TemporaryFile> made = TemporaryFile::make();
  ASSERT_TRUE(made);
  const TemporaryFile owner = std::move(*made);
  ASSERT_EQ(::write(owner.descriptor(), "x", 1), 1);
  std::string text;
  std::ifstream(owner.path()) >> text;
  EXPECT_EQ(text, "x");
  struct stat facts {};
  ASSERT_EQ(::fstat(owner.descriptor(), &facts), 0);
  EXPECT_EQ(facts.st_nlink, 0U);
}

TEST(TemporaryFolder, GoesWithWhatIsInIt) {
  std::string path;
  {
    Result<TemporaryFolder> made = TemporaryFolder::make();
    ASSERT_TRUE(made);
    const TemporaryFolder owner = std::move(*made);
    path = owner.path();
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_all);
    std::ofstream(path + "/file") << "x";
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

class WithoutRoom : public testing::Test {
 protected:
  void SetUp() override {
    if (const char* value = ::getenv("TMPDIR")) mOld = value;
    ::setenv("TMPDIR", "/nonexistent", 1);
  }
  void TearDown() override {
    if (mOld)
      ::setenv("TMPDIR", mOld->c_str(), 1);
    else
      ::unsetenv("TMPDIR");
  }
  std::optional<std::string> mOld;
};

// A folder for temporary files that is not there gives way to the usual one.
TEST_F(WithoutRoom, UsesTheUsualFolder) {
  const Result<TemporaryFile> file = TemporaryFile::make();
  ASSERT_TRUE(file) << file.error().message;
  EXPECT_TRUE(std::filesystem::read_symlink(file->path()).string().starts_with("/tmp/"));
}

}  // namespace
}  // namespace cutline
