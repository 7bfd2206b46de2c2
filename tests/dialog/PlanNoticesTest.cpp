// Where a plan is worth a word before it is printed.
#include <gtest/gtest.h>

#include <numeric>

#include "host/dialog/PlanNotices.h"
#include "tests/support/Pages.h"

namespace cutline {
namespace {

CutPlan planOf(unsigned pages, unsigned every, unsigned copies = 1) {
  LabelRun run;
  run.pages = test::pagesUpTo(pages);
  run.copies = copies;
  run.labelLength = 50;
  CutSettings settings;
  settings.cutsAutomatically = every > 0;
  settings.labelsPerCut = std::max(1U, every);
  settings.leader = 8;
  settings.feed = 4;
  return {settings, run};
}

const std::vector<unsigned> kCounts = {1, 2, 3, 4, 5, 6, 7, 8, 9};

TEST(PlanNotices, AnEvenJobIsFine) {
  EXPECT_EQ(oddPiece(planOf(12, 3), kCounts, 9999), std::nullopt);
  EXPECT_EQ(oddPiece(planOf(12, 1), kCounts, 9999), std::nullopt);
  EXPECT_EQ(oddPiece(planOf(12, 0), kCounts, 9999), std::nullopt);
  EXPECT_EQ(oddPiece(planOf(2, 5), kCounts, 9999), std::nullopt) << "one piece only";
}

TEST(PlanNotices, AnOddOneHasTheNearestDivisorAndTheNextCopies) {
  EXPECT_EQ(oddPiece(planOf(12, 5), kCounts, 9999), (OddPiece{5, 2, 4, 5}));
  EXPECT_EQ(oddPiece(planOf(4, 3), kCounts, 9999), (OddPiece{3, 1, 2, 3}));
  EXPECT_EQ(oddPiece(planOf(7, 2), kCounts, 9999), (OddPiece{2, 1, std::nullopt, 2}));
  EXPECT_EQ(oddPiece(planOf(7, 2, 3), kCounts, 3), (OddPiece{2, 1, 3, std::nullopt}));
}

TEST(PlanNotices, AskedIsAboveTwoMetresOrTwoHundredLabels) {
  EXPECT_FALSE(isMuch(planOf(39, 1)));  // 1.962 m
  EXPECT_TRUE(isMuch(planOf(40, 1)));
  LabelRun run;
  run.pages = test::pagesUpTo(200);
  EXPECT_FALSE(isMuch(CutPlan({}, run)));
  run.pages = test::pagesUpTo(201);
  EXPECT_TRUE(isMuch(CutPlan({}, run)));
}

}  // namespace
}  // namespace cutline
