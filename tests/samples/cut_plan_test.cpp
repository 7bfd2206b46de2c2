#include <gtest/gtest.h>

#include <string>

#include "samples/printer/CutPlan.h"

namespace cutline::test {
namespace {

using printer::Choices;
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

}  // namespace
}  // namespace cutline::test
