#include <gtest/gtest.h>

#include "host/dialog/StripLayout.h"

namespace cutline {

namespace {

constexpr double kNear = 1e-6;
const QSizeF kView(500, 600);

PaperSize tape(double width, double length) {
  return {"name", "text", width, length, 2, 5, width - 2, length - 10};
}

StripLayout across(std::vector<Size> pages, double zoom = 1, PaperSize paper = tape(70, 280)) {
  return {{std::move(paper), StripDirection::across, std::move(pages)}, kView, zoom};
}

StripLayout down(std::vector<Size> pages) {
  return {{tape(176, 82), StripDirection::down, std::move(pages)}, kView, 1};
}

TEST(StripLayoutTest, ATapeLiesOnItsSideAtTrueProportions) {
  const StripLayout layout = across({{280, 70}});
  const QRectF label = layout.label(0);
  EXPECT_NEAR(label.width() / label.height(), 4.0, kNear);
  EXPECT_NEAR(label.width(), 280 * layout.scale(), kNear);
}

TEST(StripLayoutTest, ALabelFitsIntoTheView) {
  const StripLayout layout = across({{280, 70}});
  EXPECT_LE(layout.label(0).right(), kView.width());
  EXPECT_GT(layout.label(0).width(), kView.width() * 0.8);
}

TEST(StripLayoutTest, AFullLaneGoesOnInTheNext) {
  const StripLayout layout = across({3, Size{280, 70}});
  ASSERT_EQ(layout.laneCount(), 3);
  EXPECT_GT(layout.label(1).top(), layout.label(0).bottom());
  EXPECT_EQ(layout.label(1).left(), layout.label(0).left());
}

TEST(StripLayoutTest, ShortLabelsShareALane) {
  const StripLayout layout = across({5, Size{70, 70}}, 1, tape(70, 70));
  ASSERT_GE(layout.lane(0).last, 1);
  EXPECT_NEAR(layout.label(1).left(), layout.label(0).right(), kNear);
  EXPECT_EQ(layout.lane(layout.laneCount() - 1).last, 4);
}

TEST(StripLayoutTest, ARollRunsDownInOneLane) {
  const StripLayout layout = down({4, Size{176, 82}});
  ASSERT_EQ(layout.laneCount(), 1);
  EXPECT_NEAR(layout.label(1).top(), layout.label(0).bottom(), kNear);
  EXPECT_NEAR(layout.label(0).width() / layout.label(0).height(), 176.0 / 82, kNear);
}

TEST(StripLayoutTest, TheTapesLowerEdgeLiesLeft) {
  const StripLayout layout = across({{280, 70}});
  const QRectF inside = layout.printableArea(0);
  const QRectF label = layout.label(0);
  EXPECT_NEAR(inside.left() - label.left(), 5 * layout.scale(), kNear);
  EXPECT_NEAR(label.right() - inside.right(), 10 * layout.scale(), kNear);
  EXPECT_NEAR(inside.top() - label.top(), 2 * layout.scale(), kNear);
}

TEST(StripLayoutTest, ARollsMarginsStandAsOnPaper) {
  const StripLayout layout = down({{176, 82}});
  const QRectF inside = layout.printableArea(0);
  EXPECT_NEAR(inside.top() - layout.label(0).top(), 10 * layout.scale(), kNear);
  EXPECT_NEAR(inside.left() - layout.label(0).left(), 2 * layout.scale(), kNear);
}

TEST(StripLayoutTest, APageOfThePapersSizeCoversTheLabel) {
  const PlacedPage placed = across({{280, 70}}).placedPage(0);
  EXPECT_FALSE(placed.isTurned);
  EXPECT_EQ(placed.rect.toAlignedRect(), across({{280, 70}}).label(0).toAlignedRect());
}

TEST(StripLayoutTest, AnUprightPageIsTurnedOntoTheTape) {
  const StripLayout layout = across({{70, 280}});
  const PlacedPage placed = layout.placedPage(0);
  EXPECT_TRUE(placed.isTurned);
  EXPECT_NEAR(placed.rect.width(), layout.label(0).width(), kNear);
}

TEST(StripLayoutTest, ASmallPageKeepsItsSizeInTheMiddle) {
  const StripLayout layout = across({{100, 40}});
  const PlacedPage placed = layout.placedPage(0);
  EXPECT_NEAR(placed.pageScale, layout.scale(), kNear);
  EXPECT_NEAR(placed.rect.center().x(), layout.label(0).center().x(), kNear);
}

TEST(StripLayoutTest, ALargePageIsMadeSmallerToThePrintableArea) {
  const StripLayout layout = across({{842, 595}});
  const PlacedPage placed = layout.placedPage(0);
  EXPECT_LT(placed.pageScale, layout.scale());
  EXPECT_NEAR(placed.rect.height(), layout.printableArea(0).height(), kNear);
  EXPECT_NEAR(placed.rect.width() / placed.rect.height(), 842.0 / 595, kNear);
}

TEST(StripLayoutTest, ASquarePageIsNeverTurned) {
  EXPECT_FALSE(across({{60, 60}}).placedPage(0).isTurned);
}

TEST(StripLayoutTest, ZoomGrowsEverything) {
  const std::vector<Size> pages(3, Size{280, 70});
  EXPECT_NEAR(across(pages, 2).label(0).width(), 2 * across(pages, 1).label(0).width(), kNear);
  EXPECT_GT(across(pages, 2).size().width(), kView.width());
}

TEST(StripLayoutTest, FindsPagesByPlace) {
  const StripLayout layout = across({3, Size{280, 70}});
  EXPECT_EQ(layout.pageAt(layout.label(2).center()), 2);
  EXPECT_EQ(layout.pageAt({0, 0}), -1);
  EXPECT_EQ(layout.pagesIn(layout.label(1)), std::vector<int>{1});
}

TEST(StripLayoutTest, AnEmptyPaperOrViewDoesNoHarm) {
  const StripLayout layout({tape(0, 0), StripDirection::across, {{10, 10}}}, {0, 0}, 1);
  EXPECT_EQ(layout.laneCount(), 1);
  EXPECT_TRUE(layout.label(0).isEmpty());
}

}  // namespace

}  // namespace cutline
