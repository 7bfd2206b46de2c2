#include "samples/printer/Choices.h"

#include <gtest/gtest.h>

#include <string>

#include "base/CutFacts.h"
#include "tests/support/Command.h"

namespace cutline::test {
namespace {

using printer::Choices;
using printer::choicesOf;
using printer::cutSettingsOf;

struct Row {
  const char* keyword;
  bool CutSettings::*effect;
};
constexpr Row kSwitches[] = {{"LxAutoTapeCut", &CutSettings::cutsAutomatically},
                             {"LxCutAtEnd", &CutSettings::cutsAtEnd},
                             {"LxHalfCut", &CutSettings::halfCuts},
                             {"LxChainPrint", &CutSettings::chains},
                             {"LxSpecialTape", &CutSettings::isSpecialTape},
                             {"LxCutMark", &CutSettings::printsCutMarks},
                             {"LxRemoveBlkSpace", &CutSettings::removesBlankSpace},
                             {"LxMirror", &CutSettings::mirrors}};

TEST(JobSettings, AreOffForAnOptionThatThePrinterDoesNotHave) {
  const CutSettings settings = cutSettingsOf({});
  for (const Row& row : kSwitches) EXPECT_FALSE(settings.*row.effect) << row.keyword;
  EXPECT_EQ(settings.labelsPerCut, 1U);
}

TEST(JobSettings, AreOnOneByOne) {
  for (const Row& chosen : kSwitches) {
    const CutSettings settings = cutSettingsOf({{chosen.keyword, "ON"}});
    for (const Row& row : kSwitches)
      EXPECT_EQ(settings.*row.effect, row.effect == chosen.effect) << row.keyword;
  }
}

TEST(JobSettings, CountLabels) {
  const auto count = [](const char* text) {
    return cutSettingsOf({{"LxCutLabel", text}}).labelsPerCut;
  };
  EXPECT_EQ(count("7"), 7U);
  EXPECT_EQ(count("0"), 1U);
  EXPECT_EQ(count("many"), 1U);
}

TEST(JobSettings, KeepTheBlankSpaceOfPreCutLabels) {
  const auto removes = [](const char* size) {
    return cutSettingsOf({{"LxRemoveBlkSpace", "ON"}, {"PageSize", size}}).removesBlankSpace;
  };
  EXPECT_TRUE(removes("W24H50"));
  EXPECT_TRUE(removes("HS24H50"));
  EXPECT_FALSE(removes("DC24H50"));
  EXPECT_FALSE(removes("AV24H60"));
}

TEST(JobSettings, KnowARollByItsFamily) {
  EXPECT_TRUE(cutSettingsOf({{"LxTapeType", "WN"}}).isRoll);
  EXPECT_FALSE(cutSettingsOf({{"LxTapeType", "wn"}}).isRoll);
  EXPECT_FALSE(cutSettingsOf({}).isRoll);
}

const std::string kTapeA = source("samples/ppd/tape-a.ppd");

TEST(JobChoices, AreTheDefaultsOfThePpd) {
  const auto choices = choicesOf(kTapeA, "");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxCutLabel"), "1");
  EXPECT_EQ(choices->at("LxHalfCut"), "OFF");
  EXPECT_EQ(choices->at("PageSize"), "W24H50");
  EXPECT_FALSE(choices->contains("LxTapeType"));
}

TEST(JobChoices, AreOverlaidWithTheJobsOptions) {
  const auto choices = choicesOf(kTapeA, "copies=2 LxHalfCut=ON LxCutLabel=7 PageSize=DC24H50");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxHalfCut"), "ON");
  EXPECT_EQ(choices->at("LxCutLabel"), "7");
  EXPECT_EQ(choices->at("PageSize"), "DC24H50");
}

TEST(JobChoices, KeepTheDefaultOfAnUnknownChoice) {
  const auto choices = choicesOf(kTapeA, "LxHalfCut=MAYBE");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxHalfCut"), "OFF");
}

TEST(JobChoices, NameTheFamily) {
  const auto choices = choicesOf(source("samples/ppd/roll.ppd"), "");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxTapeType"), "WN");
}

TEST(JobChoices, LeaveOutOptionsThatHaveNone) {
  const auto choices = choicesOf(source("tests/samples/ppd/odd-no-default.ppd"), "");
  ASSERT_TRUE(choices);
  EXPECT_FALSE(choices->contains("LxHalfCut"));
}

TEST(JobChoices, AreNoneWithoutAPpd) {
  EXPECT_FALSE(choicesOf("", ""));
  EXPECT_FALSE(choicesOf(source("samples/documents/labels.pdf"), ""));
}

// What the table says of special tape is what the printer does: an option without effect changes
// nothing of what is in force.
TEST(JobSettings, SpecialTapeLeavesOutWhatTheTableSays) {
  const auto inForceWith = [](Choices choices) {
    choices["LxSpecialTape"] = "ON";
    CutSettings settings = inForce(cutSettingsOf(choices));
    if (!settings.cutsAutomatically) settings.labelsPerCut = 1;  // nothing counts them
    return settings;
  };
  for (const SpecialTapeFacts& facts : kUnderSpecialTape) {
    if (facts.keyword == "LxSpecialTape") continue;
    const bool isCount = facts.keyword == "LxCutLabel";
    Choices with = {{std::string(facts.keyword), isCount ? "2" : "ON"}};
    if (isCount) with["LxAutoTapeCut"] = "ON";
    EXPECT_EQ(inForceWith(with) == inForceWith({}), facts.withoutEffect) << facts.keyword;
  }
}

}  // namespace
}  // namespace cutline::test
