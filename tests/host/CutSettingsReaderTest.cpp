// What a PPD's marks ask of the knife, and that the sample printer's driver reads the same.
#include <gtest/gtest.h>

#include <random>

#include "host/core/CutSettingsReader.h"
#include "samples/printer/Choices.h"
#include "tests/support/Command.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

using test::fullTapePrinter;
using test::ppdFor;
using test::TestPrinter;

CutSettings settingsWith(const TestPrinter& printer, const OptionList& marks) {
  const auto ppd = ppdFor(printer);
  ppd->mark({marks});
  return cutSettingsOf(*ppd);
}

TEST(CutSettingsReader, ReadsEachSwitch) {
  struct Row {
    const char* keyword;
    bool CutSettings::*effect;
  };
  constexpr Row kRows[] = {{"LxAutoTapeCut", &CutSettings::cutsAutomatically},
                           {"LxCutAtEnd", &CutSettings::cutsAtEnd},
                           {"LxHalfCut", &CutSettings::halfCuts},
                           {"LxChainPrint", &CutSettings::chains},
                           {"LxSpecialTape", &CutSettings::isSpecialTape},
                           {"LxCutMark", &CutSettings::printsCutMarks},
                           {"LxRemoveBlkSpace", &CutSettings::removesBlankSpace},
                           {"LxMirror", &CutSettings::mirrors}};
  for (const Row& chosen : kRows) {
    const CutSettings settings = settingsWith(fullTapePrinter(), {{chosen.keyword, "ON"}});
    for (const Row& row : kRows)
      EXPECT_EQ(settings.*row.effect, row.effect == chosen.effect) << row.keyword;
  }
}

TEST(CutSettingsReader, CountsLabels) {
  EXPECT_EQ(settingsWith(fullTapePrinter(), {{"LxCutLabel", "7"}}).labelsPerCut, 7U);
  EXPECT_EQ(settingsWith({}, {}).labelsPerCut, 1U);
}

TEST(CutSettingsReader, IsOffWithoutOptions) { EXPECT_EQ(settingsWith({}, {}), CutSettings()); }

// A third choice is neither on nor off; the printer's driver takes only ON as on.
TEST(CutSettingsReader, TakesAThirdChoiceAsOff) {
  TestPrinter printer = fullTapePrinter();
  printer.offersAuto = {"LxHalfCut"};
  EXPECT_FALSE(settingsWith(printer, {{"LxHalfCut", "AUTO"}}).halfCuts);
}

TEST(CutSettingsReader, KeepsTheBlankSpaceOfPreCutLabels) {
  const OptionList on = {{"LxRemoveBlkSpace", "ON"}};
  for (const char* paper : {"DC38", "AV62", "W12", "HS12"}) {
    TestPrinter printer = fullTapePrinter();
    printer.paper = paper;
    const bool isPreCut = paper == std::string("DC38") || paper == std::string("AV62");
    EXPECT_EQ(settingsWith(printer, on).removesBlankSpace, !isPreCut) << paper;
  }
}

TEST(CutSettingsReader, KnowsARoll) {
  TestPrinter printer = fullTapePrinter();
  printer.isRoll = true;
  EXPECT_TRUE(settingsWith(printer, {}).isRoll);
}

TEST(CutSettingsReader, TakesLengthsFromThePpdOnly) {
  const auto leaderOf = [](const std::string& value) {
    TestPrinter printer = fullTapePrinter();
    printer.more = "*LxLeaderLength: \"" + value + "\"\n*LxFeedLength: \"4.25\"\n";
    const CutSettings settings = settingsWith(printer, {});
    EXPECT_EQ(settings.feed, 4.25);
    return settings.leader;
  };
  EXPECT_EQ(leaderOf("8"), 8.0);
  EXPECT_EQ(leaderOf("0"), 0.0);
  for (const char* none : {"", "-1", "nan", "1e9", "8 mm", "eight"})
    EXPECT_FALSE(leaderOf(none)) << none;
  EXPECT_FALSE(settingsWith(fullTapePrinter(), {}).leader);
}

// Of the sample printers, whose PPDs say what they feed.
TEST(CutSettingsReader, ReadsWhatTheSamplePrintersDriverReads) {
  std::mt19937 dice(1);
  const auto upTo = [&](unsigned most) {
    return std::uniform_int_distribution<unsigned>(0, most)(dice);
  };
  constexpr const char* kPpds[] = {"tape-a", "tape-b", "roll"};
  constexpr const char* kSizes[] = {"W24H50", "DC24H50", "AV24H60", "HS24H50"};
  for (int round = 0; round < 200 && !HasFailure(); ++round) {
    const std::string path = test::source("samples/ppd/") + kPpds[upTo(2)] + ".ppd";
    OptionList options = {{"LxCutLabel", std::to_string(1 + upTo(98))},
                          {"PageSize", kSizes[upTo(3)]}};
    for (const char* keyword : {"LxCutAtEnd", "LxMirror", "LxAutoTapeCut", "LxHalfCut",
                                "LxChainPrint", "LxSpecialTape", "LxRemoveBlkSpace", "LxCutMark"})
      options.emplace_back(keyword, upTo(1) == 1 ? "ON" : "OFF");
    std::string words;
    for (const auto& [name, value] : options) words += name + '=' + value + ' ';
    const auto ppd = *PpdFile::open(path);
    ppd->mark({options});
    EXPECT_EQ(cutSettingsOf(*ppd), printer::cutSettingsOf(*printer::choicesOf(path, words)))
        << path << ' ' << words;
  }
}

}  // namespace
}  // namespace cutline
