// Lengths and counts of a plan.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "tests/strip/Outline.h"

namespace cutline::test {
namespace {

constexpr CutSettings kEveryThree = {
    .cutsAutomatically = true, .labelsPerCut = 3, .halfCuts = true, .leader = 8, .feed = 4};

TEST(CutPlan, CountsPiecesAndCuts) {
  const CutPlan plan(kEveryThree, runOf(12));
  EXPECT_EQ(plan.labels(), 12U);
  EXPECT_EQ(plan.pieces(), 4U);
  EXPECT_EQ(plan.fullCuts(), 4U);
  EXPECT_EQ(plan.halfCuts(), 9U);
  EXPECT_EQ(plan.cutMarks(), 0U);
}

// The labels of all copies count: a copy need not begin on a new piece.
TEST(CutPlan, CutsEveryFewLabelsOfTheWholeJob) {
  LabelRun run = runOf(2);
  run.copies = 2;
  run.isCollated = true;
  EXPECT_EQ(outlineOf({kEveryThree, run}), "~:L:L:L|L~|");
}

TEST(CutPlan, AddsUpTheTape) {
  const CutPlan plan(kEveryThree, runOf(12));
  EXPECT_EQ(plan.tape(), 612);
  EXPECT_EQ(plan.mostTape(), 612);
  EXPECT_EQ(plan.waste(), 12);
  EXPECT_EQ(plan.positionOf(1), 8);
  EXPECT_EQ(plan.positionOf(12), 558);
}

TEST(CutPlan, ChainWastesNothing) {
  CutSettings settings = kEveryThree;
  settings.chains = true;
  const CutPlan plan(settings, runOf(4));
  EXPECT_EQ(plan.tape(), 200);
  EXPECT_EQ(plan.waste(), 0);
}

TEST(CutPlan, KnowsNoLengthThatIsNotSaid) {
  CutSettings settings = kEveryThree;
  settings.leader.reset();
  EXPECT_FALSE(CutPlan(settings, runOf(2)).tape());
  EXPECT_FALSE(CutPlan(settings, runOf(2)).waste());
  settings.chains = true;  // there is no leader then
  EXPECT_EQ(CutPlan(settings, runOf(2)).tape(), 100);
  EXPECT_FALSE(CutPlan(kEveryThree, runOf(2, std::nullopt)).tape());
  EXPECT_EQ(CutPlan(kEveryThree, runOf(2, std::nullopt)).waste(), 12);
}

TEST(CutPlan, RemovedBlankSpaceMakesTheLengthAnUpperBound) {
  CutSettings settings = kEveryThree;
  settings.removesBlankSpace = true;
  const CutPlan plan(settings, runOf(2));
  EXPECT_FALSE(plan.tape());
  EXPECT_EQ(plan.mostTape(), 112);
  EXPECT_EQ(plan.waste(), 12);
}

std::string exactOnes(const CutPlan& plan) {
  std::string letters;
  plan.forEachEvent([&](const StripEvent& event) { letters += event.isExact ? 'x' : '?'; });
  return letters;
}

// The position behind what isn't known isn't known either.
TEST(CutPlan, SaysWhichPositionsAreExact) {
  CutSettings settings = {.cutsAutomatically = true, .leader = 8, .feed = 4};
  EXPECT_EQ(exactOnes({settings, runOf(2)}), "xxxxxxx");  // ~|L|L~|
  settings.removesBlankSpace = true;
  EXPECT_EQ(exactOnes({settings, runOf(2)}), "xxx????");
  settings = {.cutsAutomatically = true, .feed = 4};
  EXPECT_EQ(exactOnes({settings, runOf(2)}), "x??????");
  settings = {.cutsAutomatically = true, .leader = 8};
  EXPECT_EQ(exactOnes({settings, runOf(2)}), "xxxxxx?");
}

using End = PieceRun::End;
using Runs = std::vector<PieceRun>;

TEST(CutPlan, JoinsPiecesThatAreAlike) {
  CutSettings settings = kEveryThree;
  EXPECT_EQ(CutPlan(settings, runOf(12)).pieceRuns(), (Runs{{4, 3, End::Cut}}));
  EXPECT_EQ(CutPlan(settings, runOf(13)).pieceRuns(), (Runs{{4, 3, End::Cut}, {1, 1, End::Cut}}));
  EXPECT_EQ(CutPlan(settings, runOf(2)).pieceRuns(), (Runs{{1, 2, End::Cut}}));
  settings.chains = true;
  EXPECT_EQ(CutPlan(settings, runOf(6)).pieceRuns(),
            (Runs{{1, 3, End::Cut}, {1, 3, End::StaysInPrinter}}));
  EXPECT_EQ(CutPlan({}, runOf(6)).pieceRuns(), (Runs{{1, 6, End::HangsOut}}));
}

std::chrono::duration<double, std::milli> timeOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::steady_clock::now() - start;
}

constexpr double kMilliseconds = 500;

// The best of a few: others use the machine, too.
TEST(CutPlan, OfManyLabelsIsMadeAtOnce) {
  const LabelRun run = runOf(100'000);
  double best = 1e9;
  std::uint64_t events = 0;
  for (int attempt = 0; attempt < 5; ++attempt) {
    best = std::min(best, timeOf([&] {
                            const CutPlan plan(kEveryThree, run);
                            events = 0;
                            plan.forEachEvent([&](const StripEvent&) { ++events; });
                          }).count());
  }
  EXPECT_EQ(events, 2U * 100'000 + 2 + 1);  // each label with a cut, the leader with one, the feed
  RecordProperty("milliseconds", std::to_string(best));
  // A hundred times what it takes: only work that grows with the square of the labels is as slow.
  EXPECT_LT(best, kMilliseconds);
}

}  // namespace
}  // namespace cutline::test
