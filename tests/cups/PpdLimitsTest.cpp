// PPDs that nothing could bear.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zlib.h>

#include <chrono>

#include "cups/PpdContents.h"
#include "cups/PpdFile.h"
#include "tests/cups/Fixtures.h"

namespace cutline {
namespace {

class PpdLimitsTest : public testing::Test {
 protected:
  // A whole PPD with lines behind it.
  static std::string with(const std::string& lines) {
    return test::fixtureText("tape.ppd") + lines;
  }
  Result<std::shared_ptr<PpdFile>> opened(const std::string& text) const {
    return PpdFile::open(mFolder.write("tape.ppd", text));
  }
  void expectRefused(const std::string& text, const std::string& part) const {
    const auto ppd = opened(text);
    ASSERT_FALSE(ppd) << part;
    EXPECT_NE(ppd.error().message.find(part), std::string::npos) << ppd.error().message;
    EXPECT_NE(ppd.error().message.find("tape.ppd"), std::string::npos) << ppd.error().message;
  }
  void writePacked(const std::string& name, const std::string& bytes) const {
    gzFile file = gzopen((mFolder / name).c_str(), "wb");
    gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size()));
    gzclose(file);
  }
  static std::string options(int number) {
    std::string lines;
    for (int i = 0; i < number; ++i) {
      const std::string name = "Opt" + std::to_string(i);
      lines += "*OpenUI *" + name + "/O: PickOne\n*Default" + name + ": A\n*" + name +
               " A/Aa: \"\"\n*" + name + " B/Bb: \"\"\n*CloseUI: *" + name + "\n";
    }
    return lines;
  }

  test::TemporaryFolder mFolder;
};

TEST_F(PpdLimitsTest, ACustomSizeWhoseMeasureIsATextIsRefused) {
  const std::string width = "*ParamCustomPageSize Width: 1 points 10 72";
  const std::string whole = with("");
  const auto at = whole.find(width);
  ASSERT_NE(at, std::string::npos);
  for (const char* type : {"string", "password", "passcode", "int"}) {
    SCOPED_TRACE(type);
    std::string text = whole;
    text.replace(at, width.size(), std::string("*ParamCustomPageSize Width: 1 ") + type + " 0 40");
    expectRefused(text, "the parameter Width of its custom page size is no measure");
  }
  const auto ppd = opened(whole);
  ASSERT_TRUE(ppd) << ppd.error().message;
  (*ppd)->mark({{{"PageSize", "Custom.20x50mm"}}});
  EXPECT_EQ((*ppd)->markedChoice("PageSize"), "Custom");
}

TEST_F(PpdLimitsTest, MeasuresThatNoPaperHasAreNotOffered) {
  std::string lines;
  for (const char* measures :
       {"1e9 0", "1e9 10", "nan 10", "inf 10", "-5 10", "0 0", "10 300000"}) {
    const std::string name = "Mad" + std::to_string(lines.size());
    lines += "*PageSize " + name + ": \"\"\n*PaperDimension " + name + ": \"" + measures + "\"\n";
  }
  const auto ppd = opened(with("*OpenUI *PageSize: PickOne\n" + lines + "*CloseUI: *PageSize\n"));
  ASSERT_TRUE(ppd) << ppd.error().message;
  EXPECT_FALSE((*ppd)->paperSizes().empty());
  for (const PaperSize& paper : (*ppd)->paperSizes()) EXPECT_FALSE(paper.name.starts_with("Mad"));
  (*ppd)->mark({{{"PageSize", "Mad0"}}});
  EXPECT_NE((*ppd)->markedPaper().name, "Mad0");
  const auto checked = (*ppd)->checkChoice("PageSize", "Mad0");
  ASSERT_FALSE(checked);
  EXPECT_EQ(checked.error().message, "the paper \"Mad0\" has measures that no paper has");
  expectRefused(with("*OpenUI *PageSize: PickOne\n*DefaultPageSize: Mad0\n" + lines +
                     "*CloseUI: *PageSize\n"),
                "its default paper \"Mad0\" has measures that no paper has");
}

TEST_F(PpdLimitsTest, MoreThanLibcupsCanBearIsRefusedAtOnce) {
  const auto start = std::chrono::steady_clock::now();
  expectRefused(with(options(10001)), "options, and at most 10000 can be used");
  std::string groups, sizes, constraints;
  for (int i = 0; i < 30000; ++i) {
    const std::string name = std::to_string(i);
    groups += "*OpenGroup: G" + name + "\n*CloseGroup: G" + name + "\n";
    sizes += "*PageSize S" + name + ": \"\"\n";
    constraints += "*UIConstraints: *A" + name + " B *C D\n";
  }
  expectRefused(with(groups), "groups of options, and at most 2000");
  expectRefused(with(sizes), "paper sizes, and at most 5000");
  expectRefused(with(constraints), "constraints, and at most 20000");
  std::string statements;
  for (int i = 0; i < 100000; ++i) statements += "*A" + std::to_string(i) + ": \"\"\n";
  expectRefused(with(statements), "statements, and at most 100000");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

// Every one of them is broken, and each pair is told once.
TEST_F(PpdLimitsTest, ManyBrokenConstraintsAreFoundInASecond) {
  std::string lines = options(200);
  for (int i = 0; i < 200; ++i)
    for (int other = 0; other < 60; ++other)
      lines += "*UIConstraints: *Opt" + std::to_string(i) + " A *Opt" +
               std::to_string((i + other + 1) % 200) + " A\n";
  const auto ppd = opened(with(lines));
  ASSERT_TRUE(ppd) << ppd.error().message;
  (*ppd)->mark({});
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ((*ppd)->conflicts().size(), 12000U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST_F(PpdLimitsTest, WhatIsPackedIsUnpackedWithALimit) {
  writePacked("good.ppd", with(""));
  const auto good = PpdFile::open(mFolder / "good.ppd");
  EXPECT_TRUE(good) << good.error().message;
  writePacked("tape.ppd", with(std::string(kLargestPpd, '\n')));
  expectRefused(test::contentsOf(mFolder / "tape.ppd"), "it is larger than 16 MB");
  writePacked("tape.ppd", test::contentsOf(mFolder / "good.ppd"));
  expectRefused(test::contentsOf(mFolder / "tape.ppd"), "it is damaged or not whole");
  const std::string packed = test::contentsOf(mFolder / "good.ppd");
  expectRefused(packed.substr(0, packed.size() / 2), "it is damaged or not whole");
  expectRefused(with(std::string(kLargestPpd, '\n')), "it is larger than 16 MB");
}

TEST_F(PpdLimitsTest, OnlyFilesAreOpened) {
  ASSERT_EQ(::mkfifo((mFolder / "pipe").c_str(), 0600), 0);
  for (const std::string& path : {mFolder / "pipe", std::string("/dev/zero")}) {
    const auto ppd = PpdFile::open(path);
    ASSERT_FALSE(ppd);
    EXPECT_EQ(ppd.error().message, "cannot open the PPD \"" + path + "\": it is not a file");
  }
}

}  // namespace
}  // namespace cutline
