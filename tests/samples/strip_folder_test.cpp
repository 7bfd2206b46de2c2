#include <gtest/gtest.h>

#include "samples/printer/StripFolder.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using printer::AtomicFile;
using printer::deviceUriOf;

TEST(DeviceUri, NamesAFolder) {
  const auto uri = deviceUriOf("cutline-strip:/var/labels");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/var/labels");
  EXPECT_EQ(uri->pace, 0U);
}

TEST(DeviceUri, MayNameAPace) {
  const auto uri = deviceUriOf("cutline-strip:/labels?pace=250");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/labels");
  EXPECT_EQ(uri->pace, 250U);
}

TEST(DeviceUri, ResolvesEscapes) {
  const auto uri = deviceUriOf("cutline-strip:/my%20labels/%3f");
  ASSERT_TRUE(uri);
  EXPECT_EQ(uri->folder, "/my labels/?");
}

TEST(DeviceUri, RefusesWhatItIsNot) {
  for (const char* text :
       {"", "cutline-strip", "cutline-strip:", "cutline-strip:relative", "file:/labels",
        "cutline-strip:/a%2", "cutline-strip:/a%zz", "cutline-strip:/a%00b",
        "cutline-strip:/a?pace=", "cutline-strip:/a?pace=-1", "cutline-strip:/a?pace=9999999",
        "cutline-strip:/a?speed=1", "cutline-strip:/a?pace=1x"}) {
    EXPECT_FALSE(deviceUriOf(text)) << text;
  }
}

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
