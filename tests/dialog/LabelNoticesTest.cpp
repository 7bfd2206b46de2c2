#include <gtest/gtest.h>

#include "composition/EdgeLoss.h"
#include "host/dialog/LabelNotices.h"

namespace cutline {

namespace {

constexpr PageSize kLabelSize{141.73, 68.03};
constexpr PageSize kA4{595.28, 841.89};

LabelPage noticedTape() {
  LabelPage label{68.03, 141.73, 4, 4, 64.03, 137.73};
  label.upright = 90;
  return label;
}

CompositionReport reportOf(std::vector<ComposedPage> pages) {
  CompositionReport report;
  report.label = noticedTape();
  report.documentPages = static_cast<int>(pages.size());
  report.pages = std::move(pages);
  return report;
}

Ink inked(const Area& area) { return {area, area}; }
const Ink kInside = inked({10, 10, 50, 100});
const Ink kAllOver = inked({0, 0, 68.03, 141.73});

PaperSize paper(const char* name, double width, double length) {
  return {name, name, width, length, 0, 0, width, length};
}

// To look at a label takes a while.
TEST(EdgeLoss, IsLookedForWhereAPageReachesOutOfWhatCanBePrinted) {
  const PageSize inside{30, 20};
  const CompositionReport report =
      reportOf({{kLabelSize, 1, 90}, {inside, 1, 90}, {kLabelSize, 1, 90}});
  EXPECT_EQ(labelsAtTheirEdges(report, {}), (std::vector{0, 2}));
  EXPECT_EQ(labelsAtTheirEdges(report, {Scaling::fit}), std::vector<int>());
  EXPECT_EQ(labelsAtTheirEdges(report, {Scaling::fill}), std::vector<int>());
  EXPECT_EQ(labelsAtTheirEdges(reportOf({{kA4, 1}}), {Scaling::actual}), std::vector<int>())
      << "where its ink ends is not on the label";
  EXPECT_EQ(
      labelsAtTheirEdges(reportOf(std::vector<ComposedPage>(300, {kLabelSize, 1, 90})), {}).size(),
      static_cast<std::size_t>(kMostInks));
}

TEST(EdgeLoss, IsNoneWhereAllInkCanBePrinted) {
  EXPECT_FALSE(edgeLoss(reportOf({{kLabelSize, 1, 90}}), {}, {{0, kInside}}));
}

TEST(EdgeLoss, NamesTheLabelAndThePercentageThatSavesIt) {
  const auto loss = edgeLoss(reportOf({{kLabelSize, 1, 90}, {kLabelSize, 1, 90}}), {},
                             {{0, kInside}, {1, kAllOver}});
  ASSERT_TRUE(loss);
  EXPECT_EQ(loss->labels, std::vector{1});
  EXPECT_EQ(loss->percent, 88);  // 60.03 of 68.03 points
}

TEST(EdgeLoss, OfAnEmptyLabelIsNone) {
  EXPECT_FALSE(edgeLoss(reportOf({{kLabelSize, 1, 90}}), {}, {{0, std::nullopt}}));
}

TEST(EdgeLoss, IsNotClaimedOfLabelsThatNobodyLookedAt) {
  EXPECT_FALSE(edgeLoss(reportOf({{kLabelSize, 1, 90}}), {}, {}));
}

TEST(EdgeLoss, IsMeantWhereTheLabelIsFilled) {
  LayoutSettings fill;
  fill.scaling = Scaling::fill;
  EXPECT_FALSE(edgeLoss(reportOf({{kLabelSize, 1, 90}}), fill, {{0, kAllOver}}));
}

// What is shrunk further already must not grow by it.
TEST(EdgeLoss, ThePercentageFitsTheOtherLabelsToo) {
  const auto loss =
      edgeLoss(reportOf({{kLabelSize, 1, 90}, {kA4, 0.1007}}), {}, {{0, kAllOver}, {1, kInside}});
  ASSERT_TRUE(loss);
  EXPECT_EQ(loss->labels, std::vector{0});
  EXPECT_EQ(loss->percent, 10);
}

TEST(EdgeLoss, OfLargerThanOwnSizeMayStayLarger) {
  LayoutSettings larger{Scaling::percent, 200};
  const PageSize small{70, 34};
  const auto loss = edgeLoss(reportOf({{small, 2, 90}}), larger, {{0, kAllOver}});
  ASSERT_TRUE(loss);
  EXPECT_GT(loss->percent, 100);
}

TEST(EdgeLoss, IsNotSaidOfAPageThatIsLargerThanItsLabel) {
  const PageSize longer{283.46, 68.03};
  EXPECT_FALSE(edgeLoss(reportOf({{longer, 1, 90}}), {Scaling::actual}, {{0, kAllOver}}));
  EXPECT_TRUE(edgeLoss(reportOf({{longer, 0.5, 90}}), {Scaling::percent, 50},
                       {{0, inked({20, 0, 50, 141.73})}}));
}

// A pixel that is inked in part may end before the margin.
TEST(EdgeLoss, IsNotClaimedOfHalfAPixel) {
  EXPECT_FALSE(edgeLoss(reportOf({{kLabelSize, 1, 90}}), {},
                        {{0, Ink{{4.2, 4.2, 63.8, 137.5}, {3.8, 3.8, 64.2, 137.9}}}}));
}

TEST(BetterPaper, IsTheOneOfThePagesSize) {
  const std::vector papers = {paper("W12H50", 34.02, 141.73), paper("W24H30", 68.03, 85.04),
                              paper("W24H50", 68.03, 141.73)};
  const PaperSize* better = betterPaper(reportOf({{kLabelSize, 1, 90}}), papers, papers[1]);
  ASSERT_NE(better, nullptr);
  EXPECT_EQ(better->name, "W24H50");
  EXPECT_EQ(betterPaper(reportOf({{kLabelSize, 1, 90}}), papers, papers[2]), nullptr);
}

TEST(BetterPaper, MayDifferByAMillimetre) {
  const std::vector papers = {paper("W24H30", 68.03, 85.04), paper("W24H50", 68.03, 141.73)};
  EXPECT_NE(betterPaper(reportOf({{{141.73 + 2.8, 68.03 - 2.8}}}), papers, papers[0]), nullptr);
  EXPECT_EQ(betterPaper(reportOf({{{141.73 + 2.9, 68.03}}}), papers, papers[0]), nullptr);
}

TEST(BetterPaper, HasToFitEveryPage) {
  const std::vector papers = {paper("W24H30", 68.03, 85.04), paper("W24H50", 68.03, 141.73)};
  EXPECT_EQ(betterPaper(reportOf({{kLabelSize}, {kA4}}), papers, papers[0]), nullptr);
}

TEST(BetterPaper, IsNoneForPicturesWithoutASize) {
  const std::vector papers = {paper("W24H30", 68.03, 85.04), paper("W24H50", 68.03, 141.73)};
  EXPECT_EQ(betterPaper(reportOf({{{141.73, 68.03, false}}}), papers, papers[0]), nullptr);
}

TEST(ShrunkSheet, IsNamedWithItsPercentage) {
  const auto sheet = shrunkSheet(reportOf({{kA4, 0.1059}, {kA4, 0.1059}}));
  ASSERT_TRUE(sheet);
  EXPECT_EQ(sheet->name, "A4");
  EXPECT_EQ(sheet->percent, 11);
  EXPECT_EQ(shrunkSheet(reportOf({{{792, 612}, 0.1}}))->name, "Letter");
}

TEST(ShrunkSheet, IsNoneForLabelsAndForSheetsOfTheirOwnSize) {
  EXPECT_FALSE(shrunkSheet(reportOf({{kLabelSize, 0.5}})));
  EXPECT_FALSE(shrunkSheet(reportOf({{kA4, 1}})));
  EXPECT_FALSE(shrunkSheet(reportOf({{kA4, 0.1}, {kLabelSize, 1}})));
}

}  // namespace

}  // namespace cutline
