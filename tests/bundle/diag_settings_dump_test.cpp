// The file of the settings dump, in a directory of the test's own.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "bundle/diag/settings_dump.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace std::string_view_literals;

class SettingsFile : public testing::Test {
 protected:
  SettingsFile() {
    directory = open(folder.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    EXPECT_GE(directory, 0);
  }
  ~SettingsFile() override { close(directory); }
  std::string contents(const std::string& file) const { return contentsOf(folder / file); }
  std::size_t count() const { return folder.names().size(); }

  TemporaryFolder folder;
  int directory = -1;
};

TEST_F(SettingsFile, IsNamedAfterTheDumpAndBelongsToTheUserAlone) {
  const mode_t mask = umask(0277);
  EXPECT_TRUE(writeSettingsFile(directory,
                                "j\xC3\xB6"
                                "b %n",
                                "<plist/>"));
  umask(mask);
  struct stat status {};
  ASSERT_EQ(stat((folder / "LxPDE_j\xC3\xB6"
                           "b %n.plist")
                     .c_str(),
                 &status),
            0);
  EXPECT_EQ(status.st_mode, S_IFREG | 0600U);
  EXPECT_EQ(count(), 1U);
}

TEST_F(SettingsFile, HoldsEveryByte) {
  const std::string bytes = std::string("\0\xFF\n", 3) + std::string(100000, 'x');
  EXPECT_TRUE(writeSettingsFile(directory, "job", bytes));
  EXPECT_TRUE(contents("LxPDE_job.plist") == bytes);
  EXPECT_TRUE(writeSettingsFile(directory, "empty", ""));
  EXPECT_EQ(contents("LxPDE_empty.plist"), "");
}

TEST_F(SettingsFile, ANameWithASlashOrANulIsRefused) {
  for (const auto name : {"/"sv, "a/b"sv, "../a"sv, "a/"sv, "\0"sv, "a\0b"sv, "a\0/"sv})
    EXPECT_FALSE(writeSettingsFile(directory, name, "x")) << name;
  EXPECT_EQ(count(), 0U);
}

TEST_F(SettingsFile, NamesOfDotsAreNames) {
  EXPECT_TRUE(writeSettingsFile(directory, "..", "x"));
  EXPECT_EQ(contents("LxPDE_...plist"), "x");
}

TEST_F(SettingsFile, ReplacesAnOlderFileWithoutTouchingIt) {
  folder.write("LxPDE_job.plist", "old");
  std::ifstream older(folder / "LxPDE_job.plist");
  EXPECT_TRUE(writeSettingsFile(directory, "job", "new"));
  EXPECT_EQ(contents("LxPDE_job.plist"), "new");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(older), {}), "old");
}

TEST_F(SettingsFile, ReplacesALinkAndLeavesWhatItNames) {
  folder.write("precious", "kept");
  std::filesystem::create_symlink("precious", folder / "LxPDE_job.plist");
  EXPECT_TRUE(writeSettingsFile(directory, "job", "new"));
  EXPECT_EQ(contents("precious"), "kept");
  EXPECT_FALSE(std::filesystem::is_symlink(folder / "LxPDE_job.plist"));
  EXPECT_EQ(contents("LxPDE_job.plist"), "new");
}

TEST_F(SettingsFile, MakesNothingAtTheEndOfALinkThatLeadsNowhere) {
  std::filesystem::create_symlink("nowhere", folder / "LxPDE_job.plist");
  EXPECT_TRUE(writeSettingsFile(directory, "job", "new"));
  EXPECT_FALSE(std::filesystem::exists(folder / "nowhere"));
}

TEST_F(SettingsFile, WhatCannotBeWrittenLeavesNothingBehind) {
  std::filesystem::create_directory(folder / "LxPDE_job.plist");
  EXPECT_FALSE(writeSettingsFile(directory, "job", "x"));
  EXPECT_FALSE(writeSettingsFile(directory, std::string(300, 'n'), "x"));
  EXPECT_EQ(count(), 1U);
  EXPECT_FALSE(writeSettingsFile(-1, "job", "x"));
}

// A limit on the size of files stands in for a full disk.
TEST_F(SettingsFile, AFullDiskLeavesTheOlderFile) {
  folder.write("LxPDE_job.plist", "old");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool written = writeSettingsFile(directory, "job", std::string(2000, 'x'));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(written);
  EXPECT_EQ(contents("LxPDE_job.plist"), "old");
  EXPECT_EQ(count(), 1U);
}

}  // namespace
}  // namespace cutline::test
