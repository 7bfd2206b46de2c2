// A plan in English.
#include <gtest/gtest.h>

#include "strip/PlanWords.h"
#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

CutSettings onTape(CutSettings settings) {
  settings.leader = 8;
  settings.feed = 4;
  return settings;
}

struct WordsRow {
  CutSettings settings;
  unsigned labels;
  const char* sentence;
};

const WordsRow kWordsRows[] = {
    {onTape({.cutsAutomatically = true, .labelsPerCut = 3, .halfCuts = true}), 12,
     "12 labels, cut every 3, half cut between: 4 pieces, 612 mm of tape"},
    {onTape({.cutsAutomatically = true}), 12,
     "12 labels, cut after each label: 12 pieces, 612 mm of tape"},
    {onTape({.cutsAutomatically = true}), 1, "1 label, cut at the end: 1 piece, 62 mm of tape"},
    {onTape({.cutsAutomatically = true, .halfCuts = true}), 1,
     "1 label, cut at the end, half cut beside the label: 1 piece, 62 mm of tape"},
    {onTape({}), 2, "2 labels, tape not cut: 1 piece, 112 mm of tape"},
    {onTape({.isRoll = true}), 2, "2 labels, roll not cut: 1 piece, 112 mm of the roll"},
    {onTape({.cutsAtEnd = true}), 2, "2 labels, cut at the end: 1 piece, 112 mm of tape"},
    {onTape({.halfCuts = true}), 2,
     "2 labels, tape not cut, half cut between: 1 piece, 112 mm of tape"},
    {onTape({.cutsAutomatically = true, .chains = true}), 4,
     "4 labels, cut after each label, the last label stays in the printer: 4 pieces, 200 mm of "
     "tape"},
    {onTape({.cutsAutomatically = true, .isSpecialTape = true}), 2,
     "2 labels, special tape, which is never cut: 1 piece, 112 mm of tape"},
    {onTape({.printsCutMarks = true, .mirrors = true}), 2,
     "2 labels, tape not cut, with cut marks, mirrored: 1 piece, 112 mm of tape"},
    {onTape({.removesBlankSpace = true}), 2,
     "2 labels, tape not cut, blank space removed: 1 piece, at most 112 mm of tape"},
    {{.cutsAutomatically = true, .labelsPerCut = 2},
     4,
     "4 labels, cut every 2: 2 pieces, length not known"},
    {{}, 0, "no labels"},
};

TEST(PlanWords, SayTheWholeInOneSentence) {
  for (const WordsRow& row : kWordsRows)
    EXPECT_EQ(planSentence({row.settings, runOf(row.labels)}).english(), row.sentence);
}

using Lines = std::vector<std::string>;

Lines linesOf(const CutPlan& plan) {
  Lines lines;
  for (const Sentence& line : planLines(plan)) lines.push_back(line.english());
  return lines;
}

TEST(PlanWords, GiveALineToEachGroup) {
  EXPECT_EQ(
      linesOf(
          {onTape({.cutsAutomatically = true, .labelsPerCut = 3, .halfCuts = true}), runOf(13)}),
      (Lines{"leader: 8 mm, half cut behind it", "4 pieces of 3 labels, half cut between, cut off",
             "1 piece of 1 label, cut off", "feed behind the last label: 4 mm"}));
  EXPECT_EQ(linesOf({onTape({.cutsAutomatically = true, .chains = true}), runOf(3)}),
            (Lines{"2 pieces of 1 label, cut off",
                   "1 piece of 1 label, the last label stays in the printer"}));
  EXPECT_EQ(linesOf({{.halfCuts = true, .printsCutMarks = true}, runOf(2)}),
            (Lines{"leader: length not known, half cut behind it",
                   "1 piece of 2 labels, half cut between, half cut behind it, not cut off",
                   "feed behind the last label: length not known",
                   "cut marks at both ends of each label: 3"}));
  EXPECT_EQ(linesOf({{.cutsAutomatically = true, .leader = 8, .feed = 0}, runOf(1)}),
            (Lines{"leader: 8 mm, cut off", "1 piece of 1 label, cut off"}));
  EXPECT_EQ(linesOf({{.leader = 8, .feed = 4}, runOf(1)}),
            (Lines{"leader: 8 mm, not cut off", "1 piece of 1 label, not cut off",
                   "feed behind the last label: 4 mm"}));
  EXPECT_EQ(linesOf({{}, runOf(0)}), Lines());
}

// However long the job is.
TEST(PlanWords, StayFew) {
  const CutPlan plan(onTape({.cutsAutomatically = true, .labelsPerCut = 7}), runOf(100'000));
  EXPECT_EQ(planLines(plan).size(), 4U);
}

}  // namespace
}  // namespace cutline::test
