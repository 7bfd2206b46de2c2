#include <gtest/gtest.h>

#include <cstdlib>

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

}  // namespace
}  // namespace cutline
