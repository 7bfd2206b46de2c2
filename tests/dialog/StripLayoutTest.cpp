#include <gtest/gtest.h>

#include "host/dialog/StripLayout.h"

namespace cutline {

namespace {

constexpr double kNear = 1e-6;
const QSizeF kView(500, 600);

LabelPage label(double width, double length, int upright) {
  LabelPage label{width, length, 2, 5, width - 3, length - 10};
  label.upright = upright;
  return label;
}

StripLayout across(int pages, double zoom = 1, const LabelPage& tape = label(70, 280, 90)) {
  return {{tape, pages}, kView, zoom};
}

StripLayout down(int pages) { return {{label(176, 82, 0), pages}, kView, 1}; }

TEST(StripLayoutTest, ATapeLiesOnItsSideAtTrueProportions) {
  const StripLayout layout = across(1);
  const QRectF label = layout.label(0);
  EXPECT_NEAR(label.width() / label.height(), 4.0, kNear);
  EXPECT_NEAR(label.width(), 280 * layout.scale(), kNear);
}

TEST(StripLayoutTest, ALabelFitsIntoTheView) {
  const StripLayout layout = across(1);
  EXPECT_LE(layout.label(0).right(), kView.width());
  EXPECT_GT(layout.label(0).width(), kView.width() * 0.8);
}

TEST(StripLayoutTest, AFullLaneGoesOnInTheNext) {
  const StripLayout layout = across(3);
  ASSERT_EQ(layout.laneCount(), 3);
  EXPECT_GT(layout.label(1).top(), layout.label(0).bottom());
  EXPECT_EQ(layout.label(1).left(), layout.label(0).left());
}

TEST(StripLayoutTest, ShortLabelsShareALane) {
  const StripLayout layout = across(5, 1, label(70, 70, 90));
  ASSERT_GE(layout.lane(0).last, 1);
  EXPECT_NEAR(layout.label(1).left(), layout.label(0).right(), kNear);
  EXPECT_EQ(layout.lane(layout.laneCount() - 1).last, 4);
}

TEST(StripLayoutTest, ARollRunsDownInOneLane) {
  const StripLayout layout = down(4);
  ASSERT_EQ(layout.laneCount(), 1);
  EXPECT_NEAR(layout.label(1).top(), layout.label(0).bottom(), kNear);
  EXPECT_NEAR(layout.label(0).width() / layout.label(0).height(), 176.0 / 82, kNear);
}

// Left, upper, right and lower margin of a label as it is seen, in points.
struct Margins {
  int upright;
  double left, upper, right, lower;
};

class StripLayoutMargins : public testing::TestWithParam<Margins> {};

TEST_P(StripLayoutMargins, StandAsAReaderHoldsThePaper) {
  const Margins expected = GetParam();
  const StripLayout layout({label(70, 280, expected.upright), 1}, kView, 1);
  const QRectF inside = layout.printableArea(0);
  const QRectF whole = layout.label(0);
  EXPECT_NEAR(inside.left() - whole.left(), expected.left * layout.scale(), kNear);
  EXPECT_NEAR(inside.top() - whole.top(), expected.upper * layout.scale(), kNear);
  EXPECT_NEAR(whole.right() - inside.right(), expected.right * layout.scale(), kNear);
  EXPECT_NEAR(whole.bottom() - inside.bottom(), expected.lower * layout.scale(), kNear);
}

// The paper's margins: left 2, bottom 5, right 3, top 10.
INSTANTIATE_TEST_SUITE_P(Turns, StripLayoutMargins,
                         testing::Values(Margins{0, 2, 10, 3, 5}, Margins{90, 10, 3, 5, 2},
                                         Margins{180, 3, 5, 2, 10}, Margins{270, 5, 2, 10, 3}),
                         [](const auto& test) { return std::to_string(test.param.upright); });

TEST(StripLayoutTest, ARollsMarginsStandAsOnPaper) {
  const StripLayout layout = down(1);
  const QRectF inside = layout.printableArea(0);
  EXPECT_NEAR(inside.top() - layout.label(0).top(), 10 * layout.scale(), kNear);
  EXPECT_NEAR(inside.left() - layout.label(0).left(), 2 * layout.scale(), kNear);
}

TEST(StripLayoutTest, ZoomGrowsEverything) {
  EXPECT_NEAR(across(3, 2).label(0).width(), 2 * across(3, 1).label(0).width(), kNear);
  EXPECT_GT(across(3, 2).size().width(), kView.width());
}

TEST(StripLayoutTest, FindsPagesByPlace) {
  const StripLayout layout = across(3);
  EXPECT_EQ(layout.pageAt(layout.label(2).center()), 2);
  EXPECT_EQ(layout.pageAt({0, 0}), -1);
  EXPECT_EQ(layout.pagesIn(layout.label(1)), std::vector<int>{1});
}

TEST(StripLayoutTest, AnEmptyPaperOrViewDoesNoHarm) {
  const StripLayout layout({LabelPage{}, 1}, {0, 0}, 1);
  EXPECT_EQ(layout.laneCount(), 1);
  EXPECT_TRUE(layout.label(0).isEmpty());
}

}  // namespace

}  // namespace cutline
