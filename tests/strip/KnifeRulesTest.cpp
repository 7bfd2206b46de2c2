// Each rule of docs/cut-plan.md.
#include <gtest/gtest.h>

#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

struct RuleRow {
  const char* name;
  CutSettings settings;
  const char* one;    // of one label
  const char* three;  // of three
};

const RuleRow kTapeRows[] = {
    {"nothing chosen", {}, "~L~", "~LLL~"},
    {"cut at the end", {.cutsAtEnd = true}, "~L~|", "~LLL~|"},
    {"cut automatically", {.cutsAutomatically = true}, "~|L~|", "~|L|L|L~|"},
    {"a count without automatic cutting", {.labelsPerCut = 2}, "~L~", "~LLL~"},
    {"every two, and the rest",
     {.cutsAutomatically = true, .labelsPerCut = 2},
     "~|L~|",
     "~|LL|L~|"},
    {"every three", {.cutsAutomatically = true, .labelsPerCut = 3}, "~|L~|", "~|LLL~|"},
    {"more than there are", {.cutsAutomatically = true, .labelsPerCut = 99}, "~|L~|", "~|LLL~|"},
    {"a count of zero", {.cutsAutomatically = true, .labelsPerCut = 0}, "~|L~|", "~|L|L|L~|"},
    {"half cut", {.halfCuts = true}, "~:L:~", "~:L:L:L:~"},
    {"half cut, cut at the end", {.cutsAtEnd = true, .halfCuts = true}, "~:L~|", "~:L:L:L~|"},
    {"half cut makes one strip",
     {.cutsAutomatically = true, .halfCuts = true},
     "~:L~|",
     "~:L:L:L~|"},
    {"half cut, strips of two",
     {.cutsAutomatically = true, .labelsPerCut = 2, .halfCuts = true},
     "~:L~|",
     "~:L:L|L~|"},
    {"chain", {.chains = true}, "L", "LLL"},
    {"chain, cut automatically", {.cutsAutomatically = true, .chains = true}, "L", "L|L|L"},
    {"chain, cut at the end", {.cutsAtEnd = true, .chains = true}, "L", "LLL"},
    {"chain, half cut", {.halfCuts = true, .chains = true}, "L", "L:L:L"},
    {"chain, strips of two",
     {.cutsAutomatically = true, .labelsPerCut = 2, .halfCuts = true, .chains = true},
     "L",
     "L:L|L"},
    {"cut marks", {.printsCutMarks = true}, "~+L+~", "~+L+L+L+~"},
    {"cut marks, cut automatically",
     {.cutsAutomatically = true, .printsCutMarks = true},
     "~|+L+~|",
     "~|+L+|L+|L+~|"},
    {"special tape",
     {.cutsAutomatically = true,
      .cutsAtEnd = true,
      .halfCuts = true,
      .chains = true,
      .isSpecialTape = true,
      .printsCutMarks = true},
     "~L~",
     "~LLL~"},
    {"mirrored", {.mirrors = true}, "~L~", "~LLL~"},
    {"no leader", {.cutsAutomatically = true, .leader = 0.0}, "L~|", "L|L|L~|"},
    {"no feed", {.cutsAutomatically = true, .feed = 0.0}, "~|L|", "~|L|L|L|"},
};

TEST(KnifeRules, OnATape) {
  for (const RuleRow& row : kTapeRows) {
    EXPECT_EQ(outlineOf({row.settings, runOf(1)}), row.one) << row.name;
    EXPECT_EQ(outlineOf({row.settings, runOf(3)}), row.three) << row.name;
  }
}

// It is led back to the print head, unless its driver says otherwise.
TEST(KnifeRules, ARollHasNoLeader) {
  EXPECT_EQ(outlineOf({{.cutsAutomatically = true, .isRoll = true}, runOf(2)}), "L|L~|");
  EXPECT_EQ(outlineOf({{.cutsAutomatically = true, .isRoll = true, .leader = 3.0}, runOf(2)}),
            "~|L|L~|");
}

TEST(KnifeRules, WithoutLabelsThereIsNothing) {
  const CutPlan plan({.cutsAutomatically = true, .halfCuts = true, .printsCutMarks = true},
                     runOf(0));
  EXPECT_EQ(outlineOf(plan), "");
  EXPECT_EQ(plan.pieces() + plan.fullCuts() + plan.halfCuts() + plan.cutMarks(), 0U);
  EXPECT_TRUE(plan.pieceRuns().empty());
  EXPECT_EQ(plan.tape(), 0.0);
}

// Mirror, blank space and the kind of tape stay.
TEST(KnifeRules, SpecialTapeLeavesTheDrawingAlone) {
  const CutSettings left =
      inForce({.isSpecialTape = true, .removesBlankSpace = true, .mirrors = true});
  EXPECT_TRUE(left.isSpecialTape);
  EXPECT_TRUE(left.removesBlankSpace);
  EXPECT_TRUE(left.mirrors);
}

}  // namespace
}  // namespace cutline::test
