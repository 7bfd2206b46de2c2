#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "base/FileDescriptor.h"
#include "cups/SavedOptions.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

class SavedOptionsTest : public testing::Test {
 protected:
  SavedOptionsTest() {
    setenv("HOME", mHome.path().c_str(), 1);
    setenv("CUPS_SERVERROOT", mRoot.path().c_str(), 1);
  }
  ~SavedOptionsTest() override {
    mOldHome ? setenv("HOME", mOldHome->c_str(), 1) : unsetenv("HOME");
    unsetenv("CUPS_SERVERROOT");
  }

  std::string saved() const { return test::contentsOf(mHome / ".cups/lpoptions"); }

  test::TemporaryFolder mHome, mRoot;
  std::optional<std::string> mOldHome =
      getenv("HOME") ? std::optional<std::string>(getenv("HOME")) : std::nullopt;
};

TEST_F(SavedOptionsTest, ReadsDestinationsInstancesAndTheDefault) {
  const auto entries = readSavedEntries(mHome.write(
      "lpoptions",
      "# by hand\nDest tape LxHalfCut=ON copies=2\nDefault roll/long title=\"a b\\\"c\" mirror\n"
      "\ndest tape/half\nNonsense x y=z\n"));
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].name.text(), "tape");
  EXPECT_FALSE(entries[0].isDefault);
  EXPECT_EQ(entries[0].options, (OptionList{{"copies", "2"}, {"LxHalfCut", "ON"}}));
  EXPECT_EQ(entries[1].name.text(), "roll/long");
  EXPECT_TRUE(entries[1].isDefault);
  EXPECT_EQ(entries[1].options, (OptionList{{"mirror", "true"}, {"title", "a b\"c"}}));
  EXPECT_EQ(entries[2].name.text(), "tape/half");
  EXPECT_TRUE(entries[2].options.empty());
}

TEST_F(SavedOptionsTest, AnAbsentFileHasNoEntries) {
  EXPECT_TRUE(readSavedEntries("/nowhere/lpoptions").empty());
}

TEST_F(SavedOptionsTest, TheUsersEntryStandsOverTheAdministrators) {
  mRoot.write("lpoptions", "Dest tape LxHalfCut=ON copies=2\nDest tape/site Darkness=Dark\n");
  mHome.write(".cups/lpoptions", "Dest tape copies=5\nDest tape/own LxMirror=ON\n");
  EXPECT_EQ(savedOptionsFor({"tape", std::nullopt}),
            (OptionList{{"copies", "5"}, {"LxHalfCut", "ON"}}));
  EXPECT_EQ(savedOptionsFor({"tape", "site"}), (OptionList{{"Darkness", "Dark"}}));
  EXPECT_EQ(savedOptionsFor({"tape", "nobodys"}), std::nullopt);
  EXPECT_EQ(savedInstances("tape"), (std::vector<std::string>{"site", "own"}));
}

TEST_F(SavedOptionsTest, CapitalsDoNotCountInNames) {
  mRoot.write("lpoptions", "Dest tape/Shelf LxHalfCut=ON copies=2\n");
  mHome.write(".cups/lpoptions", "Dest Tape/SHELF copies=5\n");
  EXPECT_EQ(savedOptionsFor({"tape", "shelf"}), (OptionList{{"copies", "5"}, {"LxHalfCut", "ON"}}));
  EXPECT_EQ(savedInstances("tape"), (std::vector<std::string>{"Shelf"}));
  EXPECT_EQ(spelledAsSaved({"tape", "shelf"}).text(), "tape/Shelf");
  EXPECT_EQ(spelledAsSaved({"tape", "new"}).text(), "tape/new");
}

TEST_F(SavedOptionsTest, TheUsersFileIsInTheHome) {
  EXPECT_EQ(userOptionsPath(), mHome.path() + "/.cups/lpoptions");
}

// The child saves its presets and ends without the parent's clean-up.
pid_t savesInBackground(const std::string& prefix, int number) {
  const pid_t child = fork();
  if (child != 0) return child;
  bool isSaved = true;
  for (int i = 0; i < number; ++i)
    isSaved &=
        static_cast<bool>(saveEntry({"tape", prefix + std::to_string(i)}, {{"copies", "2"}}));
  _exit(isSaved ? 0 : 1);
}

TEST_F(SavedOptionsTest, NothingIsLostWhenSeveralProgramsSaveAtTheSameTime) {
  mHome.write(".cups/lpoptions", "Dest elsewhere LxMirror=ON\n");
  std::vector<pid_t> children;
  for (const char* prefix : {"a", "b", "c", "d"}) children.push_back(savesInBackground(prefix, 25));
  for (const pid_t child : children) {
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(savedInstances("tape").size(), 100U);
  EXPECT_EQ(savedOptionsFor({"elsewhere", std::nullopt}), (OptionList{{"LxMirror", "ON"}}));
  EXPECT_EQ(mHome.names(".cups"), (std::vector<std::string>{"lpoptions", "lpoptions.lock"}));
}

TEST_F(SavedOptionsTest, EveryOtherByteOfTheFileStays) {
  const std::string before =
      "# by hand\n\n  Nonsense x y=z\nDest far/away x=a\\#b y=2\nDest tape\n";
  const std::string after = "Dest long x=" + std::string(20000, 'y') + "\r\ndest roll/q # end";
  mHome.write(".cups/lpoptions", before + "default Tape/Shelf copies=9 # mine\n" + after);
  chmod((mHome / ".cups/lpoptions").c_str(), 0640);
  ASSERT_TRUE(saveEntry({"tape", "shelf"}, {{"title", "it's \"a\""}, {"copies", "2"}}));
  const std::string entry = "Default tape/shelf copies=2 title=\"it's \\\"a\\\"\"\n";
  EXPECT_EQ(saved(), before + entry + after);
  struct stat status {};
  ASSERT_EQ(stat((mHome / ".cups/lpoptions").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_EQ(*savedOptionsFor({"tape", "shelf"}),
            (OptionList{{"copies", "2"}, {"title", "it's \"a\""}}));
  ASSERT_TRUE(saveEntry({"roll", "new"}, {}));
  EXPECT_EQ(saved(), before + entry + after + "\nDest roll/new\n");
  ASSERT_TRUE(removeEntry({"TAPE", "shelf"}));
  EXPECT_EQ(saved(), before + after + "\nDest roll/new\n");
}

TEST_F(SavedOptionsTest, ALinkStaysALink) {
  const std::string file = mRoot.write("mine", "# dots\n");
  std::filesystem::create_directory(mHome / ".cups");
  std::filesystem::create_symlink(file, mHome / ".cups/lpoptions");
  ASSERT_TRUE(saveEntry({"tape", "x"}, {}));
  EXPECT_TRUE(std::filesystem::is_symlink(mHome / ".cups/lpoptions"));
  EXPECT_EQ(test::contentsOf(file), "# dots\nDest tape/x\n");
}

TEST_F(SavedOptionsTest, ADiskThatIsFullLeavesTheFileAsItWas) {
  const std::string text = "# by hand\n" + std::string(3000, '\n');
  mHome.write(".cups/lpoptions", text);
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{2000, 2000};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto saved = saveEntry({"tape", "x"}, {});
    const bool isTold = !saved && saved.error().message == "the options cannot be saved in \"" +
                                                               mHome / ".cups/lpoptions" +
                                                               "\": File too large";
    _exit(isTold ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(saved(), text);
  EXPECT_EQ(mHome.names(".cups"), (std::vector<std::string>{"lpoptions", "lpoptions.lock"}));
}

TEST_F(SavedOptionsTest, AHomeThatCannotBeWrittenIsNamedWithItsReason) {
  struct Row {
    std::string home, reason;
  };
  mHome.write("file/x", "");
  mHome.write("aFolder/.cups/lpoptions/x", "");
  mHome.write("aFile/.cups", "");
  std::filesystem::create_directory(mHome / "aLink");
  std::filesystem::create_symlink("/nowhere/at/all", mHome / "aLink/.cups");
  for (const Row& row :
       {Row{"/nowhere", "No such file or directory"}, Row{mHome / "file/x", "Not a directory"},
        Row{mHome / "aFolder", "it is not a file"}, Row{mHome / "aFile", "Not a directory"},
        Row{mHome / "aLink", "No such file or directory"}}) {
    setenv("HOME", row.home.c_str(), 1);
    const auto saved = saveEntry({"tape", "x"}, {{"copies", "2"}});
    ASSERT_FALSE(saved) << row.home;
    EXPECT_NE(saved.error().message.find(row.home + "/.cups/lpoptions"), std::string::npos)
        << saved.error().message;
    EXPECT_TRUE(saved.error().message.ends_with(": " + row.reason)) << saved.error().message;
  }
}

std::string errorOfSaving() {
  const Result<Done> done = saveEntry({"tape", "own"}, {{"LxHalfCut", "ON"}});
  return done ? "" : done.error().message;
}

// Nobody's options are that many: what is there is not read into memory, and stays.
TEST_F(SavedOptionsTest, AFileThatIsTooLargeStaysAsItIs) {
  const std::string path = mHome.write(".cups/lpoptions", "Dest tape copies=5\n");
  std::filesystem::resize_file(path, (std::size_t{16} << 20U) + 100'000);
  EXPECT_EQ(errorOfSaving(), "the options cannot be saved in \"" + path + "\": it is too large");
  EXPECT_EQ(std::filesystem::file_size(path), (std::size_t{16} << 20U) + 100'000);
}

TEST_F(SavedOptionsTest, WhatIsSavedAlreadyIsNotWrittenAgain) {
  EXPECT_EQ(errorOfSaving(), "");
  const std::string path = mHome / ".cups/lpoptions";
  struct stat before {};
  struct stat after {};
  ASSERT_EQ(::stat(path.c_str(), &before), 0);
  EXPECT_EQ(errorOfSaving(), "");
  ASSERT_EQ(::stat(path.c_str(), &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(SavedOptionsTest, AProgramThatKeepsTheFileLockedIsWaitedForAndNamed) {
  const std::string path = mHome.write(".cups/lpoptions", "Dest tape copies=5\n");
  const FileDescriptor lock(::open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
  ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
  EXPECT_EQ(errorOfSaving(), "the options cannot be saved in \"" + path +
                                 "\": another program keeps it locked; try again");
  ASSERT_EQ(::flock(lock.get(), LOCK_UN), 0);
  EXPECT_EQ(errorOfSaving(), "");
}

// As services run; libcups' own programs then use the administrator's file as well.
TEST_F(SavedOptionsTest, WithoutAHomeInTheEnvironmentItIsTheUsersOwn) {
  unsetenv("HOME");
  const passwd* user = getpwuid(getuid());
  ASSERT_NE(user, nullptr);
  EXPECT_EQ(userOptionsPath(), std::string(user->pw_dir) + "/.cups/lpoptions");
}

TEST_F(SavedOptionsTest, WhatIsLongerThanALineIsRefused) {
  EXPECT_TRUE(saveEntry({"tape", "x"}, {{"title", std::string(8000, 'x')}}));
  const auto saved = saveEntry({"tape", "x"}, {{"title", std::string(8200, 'x')}});
  ASSERT_FALSE(saved);
  EXPECT_NE(saved.error().message.find("at most 8191"), std::string::npos) << saved.error().message;
}

}  // namespace
}  // namespace cutline
