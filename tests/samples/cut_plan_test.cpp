#include <gtest/gtest.h>

#include <string>

#include "base/CutFacts.h"
#include "samples/printer/CutPlan.h"
#include "tests/support/Command.h"

namespace cutline::test {
namespace {

using printer::Choices;
using printer::choicesOf;
using printer::Cut;
using printer::CutPlan;

// The cuts behind the labels of a job, one letter each: | full, : half, - none.
std::string cutsOf(const CutPlan& plan, unsigned labels) {
  const auto letter = [](Cut cut) { return cut == Cut::Full ? '|' : cut == Cut::Half ? ':' : '-'; };
  std::string cuts;
  for (unsigned label = 1; label < labels; ++label) cuts += letter(plan.afterLabel(label));
  return cuts + letter(plan.atEnd());
}

struct Row {
  const char* name;
  Choices choices;
  const char* cuts;  // of five labels
};

const Row kRows[] = {
    {"nothing chosen", {}, "-----"},
    {"cut at the end", {{"LxCutAtEnd", "ON"}}, "----|"},
    {"auto cut", {{"LxAutoTapeCut", "ON"}}, "|||||"},
    {"auto cut off, with a count", {{"LxAutoTapeCut", "OFF"}, {"LxCutLabel", "2"}}, "-----"},
    {"every two labels, and the rest", {{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "2"}}, "-|-||"},
    {"more than there are", {{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "99"}}, "----|"},
    {"a count that is none", {{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "many"}}, "|||||"},
    {"a count of zero", {{"LxAutoTapeCut", "ON"}, {"LxCutLabel", "0"}}, "|||||"},
    {"half cut", {{"LxHalfCut", "ON"}}, "::::-"},
    {"half cut, cut at the end", {{"LxHalfCut", "ON"}, {"LxCutAtEnd", "ON"}}, "::::|"},
    {"half cut makes one strip", {{"LxHalfCut", "ON"}, {"LxAutoTapeCut", "ON"}}, "::::|"},
    {"half cut, strips of two",
     {{"LxHalfCut", "ON"}, {"LxAutoTapeCut", "ON"}, {"LxCutLabel", "2"}},
     ":|:||"},
    {"chain", {{"LxChainPrint", "ON"}, {"LxAutoTapeCut", "ON"}}, "||||-"},
    {"chain, cut at the end", {{"LxChainPrint", "ON"}, {"LxCutAtEnd", "ON"}}, "-----"},
    {"special tape",
     {{"LxSpecialTape", "ON"}, {"LxAutoTapeCut", "ON"}, {"LxHalfCut", "ON"}, {"LxCutAtEnd", "ON"}},
     "-----"},
};

TEST(CutPlan, CutsWhereTheOptionsSay) {
  for (const Row& row : kRows) EXPECT_EQ(cutsOf(CutPlan(row.choices), 5), row.cuts) << row.name;
}

TEST(CutPlan, FeedsOutUnlessItIsAChain) {
  EXPECT_TRUE(CutPlan(Choices()).feedsOut());
  EXPECT_FALSE(CutPlan(Choices{{"LxChainPrint", "ON"}}).feedsOut());
}

TEST(CutPlan, SpecialTapeSwitchesOffChainAndMarksButNotMirror) {
  const CutPlan plan(
      {{"LxSpecialTape", "ON"}, {"LxChainPrint", "ON"}, {"LxCutMark", "ON"}, {"LxMirror", "ON"}});
  EXPECT_TRUE(plan.feedsOut());
  EXPECT_FALSE(plan.printsCutMarks());
  EXPECT_TRUE(plan.mirrors());
}

TEST(CutPlan, KeepsTheBlankSpaceOfPreCutLabels) {
  const auto removes = [](const char* size) {
    return CutPlan(Choices{{"LxRemoveBlkSpace", "ON"}, {"PageSize", size}}).removesBlankSpace();
  };
  EXPECT_TRUE(removes("W24H50"));
  EXPECT_TRUE(removes("HS24H50"));
  EXPECT_FALSE(removes("DC24H50"));
  EXPECT_FALSE(removes("AV24H60"));
}

TEST(CutPlan, KnowsARollByItsFamily) {
  EXPECT_TRUE(CutPlan(Choices{{"LxTapeType", "WN"}}).isRoll());
  EXPECT_FALSE(CutPlan(Choices{{"LxTapeType", "wn"}}).isRoll());
  EXPECT_FALSE(CutPlan(Choices()).isRoll());
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
// nothing of the plan.
TEST(CutPlan, SpecialTapeLeavesOutWhatTheTableSays) {
  const auto planOf = [](Choices choices, const char* count) {
    choices["LxSpecialTape"] = "ON";
    choices["LxCutLabel"] = count;
    const CutPlan plan(choices);
    return cutsOf(plan, 5) + (plan.feedsOut() ? 'F' : '-') + (plan.printsCutMarks() ? 'C' : '-') +
           (plan.mirrors() ? 'M' : '-') + (plan.removesBlankSpace() ? 'B' : '-');
  };
  for (const SpecialTapeFacts& facts : kUnderSpecialTape) {
    const std::string keyword(facts.keyword);
    if (keyword == "LxSpecialTape") continue;
    const bool isCount = keyword == "LxCutLabel";
    const std::string with =
        isCount ? planOf({{"LxAutoTapeCut", "ON"}}, "2") : planOf({{keyword, "ON"}}, "1");
    const std::string without = planOf({}, "1");
    EXPECT_EQ(with == without, facts.withoutEffect) << keyword;
  }
}

}  // namespace
}  // namespace cutline::test
