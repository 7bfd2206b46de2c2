#include <gtest/gtest.h>

#include <QSize>
#include <filesystem>
#include <fstream>

#include "host/dialog/Remembered.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

class RememberedTest : public testing::Test {
 protected:
  std::string document(const std::string& name) const {
    std::ofstream(mFolder.path() + '/' + name) << "text";
    return mFolder.path() + '/' + name;
  }
  std::string path() const { return mFolder.path() + "/state/cutline/window"; }
  Remembered again() const { return Remembered(path()); }

  test::TemporaryFolder mFolder;
};

TEST_F(RememberedTest, NothingIsRememberedAtFirst) {
  EXPECT_FALSE(again().lastPrinter());
  EXPECT_TRUE(again().windowSize().isEmpty());
  EXPECT_TRUE(again().recentDocuments().empty());
}

TEST_F(RememberedTest, WhatIsSetIsThereTheNextTime) {
  again().setLastPrinter(DestinationName::parse("tape24/shelf"));
  again().setWindowSize({1200, 700});
  again().setWindowSize({1300, 800});
  EXPECT_EQ(again().lastPrinter(), DestinationName::parse("tape24/shelf"));
  EXPECT_EQ(again().windowSize(), QSize(1300, 800));
}

TEST_F(RememberedTest, TheNewestDocumentComesFirstAndOnce) {
  const std::string a = document("a");
  const std::string b = document("b c");
  for (const std::string& each : {a, b, a}) again().addRecent(each);
  EXPECT_EQ(again().recentDocuments(), (std::vector<std::string>{a, b}));
}

TEST_F(RememberedTest, TenDocumentsAreKeptAndMissingOnesLeftOut) {
  for (int i = 0; i < 14; ++i) again().addRecent(document("d" + std::to_string(i)));
  EXPECT_EQ(again().recentDocuments().size(), 10u);
  std::filesystem::remove(mFolder.path() + "/d13");
  EXPECT_EQ(again().recentDocuments().front(), mFolder.path() + "/d12");
}

TEST_F(RememberedTest, StandardInputIsNoDocumentToOpenAgain) {
  again().addRecent("/proc/self/fd/0");
  EXPECT_TRUE(again().recentDocuments().empty());
}

TEST_F(RememberedTest, ABrokenFileCountsAsEmpty) {
  std::filesystem::create_directories(std::filesystem::path(path()).parent_path());
  std::ofstream(path(), std::ios::binary)
      << "size 12x-4\nsize\nprinter \n\n\xff\xfe" << '\0' << std::string(100000, 'x');
  EXPECT_FALSE(again().lastPrinter());
  EXPECT_TRUE(again().windowSize().isEmpty());
  again().setWindowSize({1200, 700});
  EXPECT_EQ(again().windowSize(), QSize(1200, 700));
}

TEST_F(RememberedTest, WhatCannotBeWrittenIsForgotten) {
  Remembered nowhere("/proc/cutline/window");
  nowhere.setWindowSize({1200, 700});
  nowhere.addRecent(document("a"));
  EXPECT_TRUE(nowhere.windowSize().isEmpty());
}

TEST_F(RememberedTest, ANameWithALineEndBreaksNothing) {
  again().setWindowSize({1200, 700});
  again().addRecent(document("a\nsize 1x1"));
  EXPECT_EQ(again().windowSize(), QSize(1200, 700));
  EXPECT_TRUE(again().recentDocuments().empty());
}

}  // namespace
}  // namespace cutline
