// What a PPD's marks ask of the knife, and that the sample printer's driver reads the same.
#include <gtest/gtest.h>

#include <random>

#include "host/core/CutSettingsReader.h"
#include "samples/printer/Choices.h"
#include "tests/support/Command.h"
#include "tests/support/OtherDrivers.h"
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
  EXPECT_EQ(settingsWith(fullTapePrinter(), {}).labelsPerCut, 1U);
}

TEST(CutSettingsReader, IsOffWithoutOneOfOurOptions) {
  TestPrinter printer;
  printer.cutOptions = {{"LxMirror", "OFF"}};
  EXPECT_EQ(settingsWith(printer, {}), CutSettings());
}

TEST(CutSettingsReader, SaysNothingWhereTheDriverDoesNot) {
  EXPECT_EQ(settingsWith({}, {}).authority, CutAuthority::Nobody);
}

// What the installed words make of a choice.
struct Meaning {
  TestPrinter printer;
  OptionList marks;
  CutSettings means;
};

CutSettings never() { return {.isRoll = true}; }
CutSettings cutBehind(CutUnit unit) {
  return {.cutsAutomatically = true, .unit = unit, .isRoll = true};
}
CutSettings atTheEnd() { return {.cutsAtEnd = true, .isRoll = true}; }
CutSettings asThePrinterDecides() { return {.authority = CutAuthority::Printer, .isRoll = true}; }

void expectMeaning(const Meaning& row) {
  std::string marks;
  for (const auto& [keyword, choice] : row.marks) marks += keyword + '=' + choice + ' ';
  EXPECT_EQ(settingsWith(row.printer, row.marks), row.means) << marks << row.printer.more;
}

TEST(CutSettingsReader, KnowsTheStandardsKeyword) {
  const TestPrinter printer = test::cutMediaPrinter();
  expectMeaning({printer, {}, never()});
  expectMeaning({printer, {{"CutMedia", "Auto"}}, asThePrinterDecides()});
  expectMeaning({printer, {{"CutMedia", "EndOfPage"}}, cutBehind(CutUnit::Label)});
  expectMeaning({printer, {{"CutMedia", "EndOfSet"}}, cutBehind(CutUnit::Copy)});
  expectMeaning({printer, {{"CutMedia", "EndOfDoc"}}, cutBehind(CutUnit::Document)});
  expectMeaning({printer, {{"CutMedia", "EndOfJob"}}, atTheEnd()});
}

TEST(CutSettingsReader, KnowsAFilterThatCutsBehindEachPage) {
  const TestPrinter printer = test::cutMediaPrinter(test::kLabelFilter);
  expectMeaning({printer, {}, never()});
  for (const char* choice : {"Auto", "EndOfPage", "EndOfSet", "EndOfDoc", "EndOfJob"})
    expectMeaning({printer, {{"CutMedia", choice}}, cutBehind(CutUnit::Page)});
}

TEST(CutSettingsReader, KnowsAnIntervalThatCountsInOneModeAlone) {
  CutSettings everyThree = cutBehind(CutUnit::Label);
  everyThree.labelsPerCut = 3;
  everyThree.cutsRest = false;
  const OptionList interval = {{"inPrintMode", "Cut"}, {"inCutInterval", "3"}};
  expectMeaning({test::intervalPrinter(), interval, everyThree});
  expectMeaning({test::intervalPrinter(), {{"inCutInterval", "3"}}, never()});
  expectMeaning({test::intervalPrinter(), {{"inPrintMode", "Cut"}}, asThePrinterDecides()});
  expectMeaning({test::intervalPrinter(), {{"inPrintMode", "Tear"}}, never()});
  // It does not get to the printer.
  expectMeaning({test::intervalPrinter(test::kLabelFilter), interval, asThePrinterDecides()});
}

TEST(CutSettingsReader, KnowsModes) {
  expectMeaning({test::modePrinter(), {}, asThePrinterDecides()});
  for (const char* mode : {"Tear", "Peel", "Rewind", "Applicator"})
    expectMeaning({test::modePrinter(), {{"zePrintMode", mode}}, never()});
  expectMeaning({test::modePrinter(), {{"zePrintMode", "Cutter"}}, cutBehind(CutUnit::Label)});
}

TEST(CutSettingsReader, OurKeywordsAloneCountWhereTheyAre) {
  TestPrinter printer = test::cutMediaPrinter();
  printer.cutOptions = {{"LxCutAtEnd", "OFF"}};
  EXPECT_EQ(settingsWith(printer, {{"CutMedia", "EndOfPage"}}), CutSettings());
}

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
