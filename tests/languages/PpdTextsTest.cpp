// The PPD's texts come first; the bundle's stand in where the PPD has none.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/languages/CutPpds.h"
#include "tests/languages/Language.h"
#include "tests/languages/LanguagePanel.h"
#include "tests/languages/StagedBundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

struct OptionTexts {
  const char* keyword;
  const char* inThePpd;  // of the printer that shows every box
  const char* key;       // in the string tables
};

// From the top of the panel.
constexpr OptionTexts kOptionTexts[] = {
    {"LxCutMark", "Print cut marks", "RS_CutMark"},
    {"LxCutLabel", "Cut automatically after every", "RS_CutAtEvery"},
    {"LxAutoTapeCut", "Cut automatically", "RS_AutoTapeCut"},
    {"LxCutAtEnd", "Cut after the last label", "RS_CutAtEnd"},
    {"LxHalfCut", "Half cut between labels", "RS_HalfCut"},
    {"LxSpecialTape", "Special tape (never cut)", "RS_SpecialTape"},
    {"LxChainPrint", "Chain printing (saves tape)", "RS_ChainPrinting"},
    {"LxMirror", "Mirror printing", "RS_MirrorPrinting"},
    {"LxRemoveBlkSpace", "Remove blank space", "RS_RemoveBlkSpace"},
};

using Texts = std::vector<std::string>;

template <class TextOf>
Texts titles(TextOf textOf) {
  Texts all;
  for (const OptionTexts& texts : kOptionTexts) all.emplace_back(textOf(texts));
  return all;
}

constexpr std::size_t kHalfCutLine = 2;  // of the summary, after cut every and cut at end

class PpdTexts : public testing::TestWithParam<Language> {
 protected:
  // What the boxes say to a reader of the language, on a printer with this PPD.
  Texts boxTitles(const std::string& ppd) const {
    test::writeFile(mPath, ppd);
    return LanguagePanel({{"LANG", GetParam().locale}}, mPath).boxTitles();
  }
  Texts summaryTitles(const std::string& ppd) const {
    test::writeFile(mPath, ppd);
    LanguagePanel panel({{"LANG", GetParam().locale}}, mPath);
    Texts all;
    for (const SummaryLine& line : panel.model().summary()) all.push_back(line.title);
    return all;
  }
  std::string text(const char* key) const { return mTable.at(key); }

  const std::string mPrinter = testPpdPath("tape-all-shown");

 private:
  StringTable mTable = stringTable(GetParam().folder);
  test::TemporaryFolder mFolder;
  std::string mPath = mFolder / "printer.ppd";
};

TEST_P(PpdTexts, WinInEveryLanguage) {
  const std::string ppd = test::contentsOf(mPrinter);
  EXPECT_EQ(boxTitles(ppd), titles([](auto texts) { return texts.inThePpd; }));
  EXPECT_EQ(summaryTitles(ppd)[kHalfCutLine], "Half cut between labels");
}

TEST_P(PpdTexts, GiveWayToTheTablesWhereThereAreNone) {
  const std::string ppd = withoutCutTexts(mPrinter);
  EXPECT_EQ(boxTitles(ppd), titles([&](auto texts) { return text(texts.key); }));
  EXPECT_EQ(summaryTitles(ppd)[kHalfCutLine], text("RS_HalfCut"));
}

TEST_P(PpdTexts, GiveWayToTheTablesWhereTheyCannotBeRead) {
  const std::string ppd = test::contentsOf(testPpdPath("odd-bad-text"));
  EXPECT_EQ(boxTitles(ppd), Texts{text("RS_HalfCut")});
  EXPECT_EQ(summaryTitles(ppd), Texts{text("RS_STitle_HalfCut")});
}

TEST_P(PpdTexts, AreTakenInTheReadersLanguage) {
  const std::string ppd = withCutTexts(mPrinter, ppdLanguage(GetParam()), "Translated");
  const Texts translated =
      titles([](auto texts) { return std::string("Translated ") + texts.keyword; });
  EXPECT_EQ(boxTitles(ppd), translated);
}

INSTANTIATE_TEST_SUITE_P(Languages, PpdTexts, testing::ValuesIn(kLanguages),
                         [](const auto& language) { return nameOf(language.param); });

}  // namespace
}  // namespace cutline
