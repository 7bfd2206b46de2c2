#include <gtest/gtest.h>

#include "samples/printer/AtomicFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using printer::AtomicFile;

TEST(AtomicFile, AppearsWhenItIsWhole) {
  const TemporaryFolder folder;
  AtomicFile file(folder / "result");
  ASSERT_NE(file.stream(), nullptr);
  std::fputs("text", file.stream());
  EXPECT_EQ(folder.names().size(), 1U);
  EXPECT_EQ(folder.names()[0][0], '.');
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(folder.names(), std::vector<std::string>{"result"});
  EXPECT_EQ(contentsOf(folder / "result"), "text");
}

TEST(AtomicFile, LeavesNothingWhenItIsGivenUp) {
  const TemporaryFolder folder;
  {
    const AtomicFile file(folder / "result");
    std::fputs("text", file.stream());
  }
  EXPECT_TRUE(folder.names().empty());
}

TEST(AtomicFile, LeavesNothingWhenItsNameIsTaken) {
  const TemporaryFolder folder;
  const std::string taken = folder / "a";
  ASSERT_EQ(std::system(("mkdir " + taken).c_str()), 0);
  AtomicFile file(taken);
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(folder.names(), std::vector<std::string>{"a"});
}

TEST(AtomicFile, HasNoStreamWithoutItsFolder) {
  AtomicFile file("/nonexistent/result");
  EXPECT_EQ(file.stream(), nullptr);
  EXPECT_FALSE(file.commit());
}

}  // namespace
}  // namespace cutline::test
