#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "host/dialog/LabelAsSeen.h"
#include "host/dialog/StripLayout.h"
#include "tests/dialog/StripJobs.h"

namespace cutline::test {
namespace {

constexpr double kNear = 1e-6;
const StripRoom kRoom{QSizeF(1000, 260), 18, 20};

StripLayout layoutOf(const StripContent& content, StripZoom zoom = {}) {
  return {content, kRoom, zoom};
}

// 62 mm wide and 29 mm long.
LabelPage rollLabel() { return {175.748, 82.205, 4, 4, 171, 78}; }

CutSettings rollSettings() {
  CutSettings settings;
  settings.isRoll = true;
  settings.feed = 3;
  return settings;
}

TEST(StripLayoutTest, ATapeLiesOnItsSideAtTrueProportions) {
  const StripLayout layout = layoutOf(jobOf(1));
  const QRectF label = layout.label(1);
  EXPECT_NEAR(label.width() / label.height(), 141.732 / 68.031, kNear);
  EXPECT_NEAR(label.width(), 141.732 * layout.scale(), kNear);
}

TEST(StripLayoutTest, ARollRunsDownAndGoesOnToTheRight) {
  const StripLayout layout = layoutOf(jobOf(30, rollSettings(), rollLabel()));
  ASSERT_GT(layout.laneCount(), 1U);
  EXPECT_NEAR(layout.label(2).top(), layout.label(1).bottom(), kNear);
  EXPECT_EQ(layout.label(2).left(), layout.label(1).left());
  const QRectF next = layout.label(layout.lane(1).first);
  EXPECT_GT(next.left(), layout.label(1).right());
  EXPECT_EQ(next.top(), layout.label(1).top());
}

TEST(StripLayoutTest, TheWholeJobIsInSightWhereItStaysReadable) {
  for (const unsigned pages : {1U, 2U, 5U, 12U}) {
    const StripLayout layout = layoutOf(jobOf(pages));
    EXPECT_LE(layout.size().width(), kRoom.view.width()) << pages;
    EXPECT_LE(layout.size().height(), kRoom.view.height()) << pages;
    EXPECT_GE(layout.breadth(), 50) << pages;
  }
}

TEST(StripLayoutTest, AJobIsShownAsLargeAsItFits) {
  for (const unsigned pages : {4U, 5U, 12U}) {
    const StripLayout larger = layoutOf(jobOf(pages), {1.02, false});
    EXPECT_TRUE(larger.size().width() > kRoom.view.width() ||
                larger.size().height() > kRoom.view.height())
        << pages;
  }
}

TEST(StripLayoutTest, ALongJobStaysReadableAndIsScrolled) {
  const StripLayout layout = layoutOf(jobOf(300));
  EXPECT_NEAR(layout.breadth(), 50, kNear);
  EXPECT_LE(layout.size().width(), kRoom.view.width());
  EXPECT_GT(layout.size().height(), kRoom.view.height());
}

TEST(StripLayoutTest, LanesBreakBetweenPieces) {
  CutSettings settings = tapeSettings();
  settings.cutsAutomatically = true;
  settings.labelsPerCut = 3;
  const StripLayout layout = layoutOf(jobOf(300, settings));
  ASSERT_GT(layout.laneCount(), 1U);
  for (std::uint64_t lane = 0; lane + 1 < layout.laneCount(); ++lane)
    EXPECT_EQ(layout.lane(lane).last % 3, 0U) << lane;
}

TEST(StripLayoutTest, APieceThatIsLongerThanALaneGoesOn) {
  CutSettings settings = tapeSettings();
  settings.cutsAutomatically = true;
  settings.labelsPerCut = 100;
  const StripLayout layout = layoutOf(jobOf(300, settings));
  EXPECT_LT(layout.lane(0).last, 100U);
  EXPECT_LE(layout.size().width(), kRoom.view.width());
}

TEST(StripLayoutTest, ALargeLabelFillsTheView) {
  const StripLayout layout = layoutOf(jobOf(300), {1, true});
  const QRectF around = layout.surroundings(7);
  EXPECT_GT(around.height(), kRoom.view.height() - 20);
  EXPECT_LE(around.height(), kRoom.view.height());
}

// Left, upper, right and lower margin of a label as it is seen, in points.
struct Margins {
  int upright;
  double left, upper, right, lower;
};

class LabelAsSeen : public testing::TestWithParam<Margins> {};

TEST_P(LabelAsSeen, HasItsMarginsAsAReaderHoldsThePaper) {
  const Margins expected = GetParam();
  LabelPage label{70, 280, 2, 5, 67, 270};
  label.upright = expected.upright;
  const QSizeF whole = sizeAsSeen(label);
  const QRectF inside = printableAsSeen(label);
  EXPECT_NEAR(inside.left(), expected.left, kNear);
  EXPECT_NEAR(inside.top(), expected.upper, kNear);
  EXPECT_NEAR(whole.width() - inside.right(), expected.right, kNear);
  EXPECT_NEAR(whole.height() - inside.bottom(), expected.lower, kNear);
}

// The paper's margins: left 2, bottom 5, right 3, top 10.
INSTANTIATE_TEST_SUITE_P(Turns, LabelAsSeen,
                         testing::Values(Margins{0, 2, 10, 3, 5}, Margins{90, 10, 3, 5, 2},
                                         Margins{180, 3, 5, 2, 10}, Margins{270, 5, 2, 10, 3}),
                         [](const auto& test) { return std::to_string(test.param.upright); });

TEST(StripLayoutTest, AnEmptyPaperOrViewDoesNoHarm) {
  const StripContent empty = jobOf(1, tapeSettings(), LabelPage{});
  const StripLayout layout(empty, {QSizeF(0, 0), 10, 10}, {});
  EXPECT_EQ(layout.laneCount(), 1U);
  EXPECT_LT(layout.label(1).width(), 1);
}

// Jobs at random against a model that lays label after label.

StripContent layoutJob(Dice& dice) {
  CutSettings settings;
  for (bool CutSettings::*flag :
       {&CutSettings::cutsAutomatically, &CutSettings::cutsAtEnd, &CutSettings::halfCuts,
        &CutSettings::chains, &CutSettings::printsCutMarks, &CutSettings::isRoll})
    settings.*flag = upTo(dice, 1) == 1;
  settings.labelsPerCut = 1 + upTo(dice, 9);
  if (upTo(dice, 3) > 0) settings.leader = upTo(dice, 40) / 2.0;
  if (upTo(dice, 3) > 0) settings.feed = upTo(dice, 40) / 2.0;
  LabelPage label = tapeLabel(20 + upTo(dice, 400), upTo(dice, 1) == 0 ? 90 : 0);
  StripContent content = jobOf(1 + upTo(dice, 80), settings, label);
  LabelRun run = content.plan.run();
  run.copies = 1 + upTo(dice, 3);
  return {label, CutPlan(settings, run), true};
}

class EachJob : public testing::Test {
 protected:
  template <typename Check>
  void forMany(Check check) {
    const int rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 20'000 : 600;
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
      SCOPED_TRACE(round);
      Dice dice(static_cast<unsigned>(round));
      const StripContent content = layoutJob(dice);
      const StripRoom room{QSizeF(300 + upTo(dice, 1600), 150 + upTo(dice, 350)), 16, 20};
      check(content, room, StripLayout(content, room, {0.5 + upTo(dice, 8) / 4.0, false}));
    }
  }
};

// The place along the strip, whatever its direction.
double alongOf(const StripLayout& layout, const QRectF& rect) {
  return layout.runsAcross() ? rect.left() : rect.top();
}

// Each lane's labels follow each other with a gap where the plan cuts, and every label is in one.
TEST_F(EachJob, HasItsLabelsWhereLayingOneAfterTheOtherPutsThem) {
  forMany([](const StripContent& content, const StripRoom&, const StripLayout& layout) {
    std::uint64_t label = 0;
    double place = 0;
    std::uint64_t laneOfLast = 0;
    content.plan.forEachEvent([&](const StripEvent& event) {
      if (event.kind == StripEventKind::FullCut && event.label > 0) place += StripLine::gap();
      if (event.kind != StripEventKind::Label) return;
      ASSERT_EQ(event.label, ++label);
      const std::uint64_t index = layout.laneOf(label);
      const StripLayout::Lane lane = layout.lane(index);
      if (label == 1 || index != laneOfLast) {
        ASSERT_EQ(lane.first, label);
        place = lane.along;
      }
      laneOfLast = index;
      ASSERT_GE(lane.last, label);
      EXPECT_NEAR(alongOf(layout, layout.label(label)), place, 1e-4);
      place += content.label.length * layout.scale();
    });
    EXPECT_EQ(label, layout.labelCount());
    EXPECT_EQ(laneOfLast + 1, layout.laneCount());
  });
}

TEST_F(EachJob, IsAsLongAsThePlanSays) {
  forMany([](const StripContent& content, const StripRoom&, const StripLayout& layout) {
    if (!content.plan.tape()) return;
    const StripLine& line = layout.line();
    const double length =
        line.leader() + line.feed() + static_cast<double>(layout.labelCount()) * line.labelLength();
    EXPECT_NEAR(length / layout.scale() / kPointsPerMillimetre, *content.plan.tape(), 1e-4);
  });
}

TEST_F(EachJob, LiesInsideItsSize) {
  forMany([](const StripContent& content, const StripRoom& room, const StripLayout& layout) {
    const QRectF whole(QPointF(0, 0), layout.size().expandedTo(room.view));
    const StripLine& line = layout.line();
    for (std::uint64_t index = 0; index < layout.laneCount(); ++index) {
      const StripLayout::Lane lane = layout.lane(index);
      const double end = layout.along(lane, lane.last) + line.labelLength();
      const bool isLast = lane.last == layout.labelCount();
      const double tail = isLast ? line.feed() + line.endLength() : StripLine::goesOn();
      const QRectF taken =
          layout.placed(lane.along - line.lead(), lane.across - room.ruler - StripLayout::knives(),
                        end + tail - lane.along + line.lead(), layout.breadth());
      EXPECT_TRUE(whole.adjusted(-kNear, -kNear, kNear, kNear).contains(taken)) << index;
    }
    static_cast<void>(content);
  });
}

TEST_F(EachJob, FindsEachLabelByPlace) {
  forMany([](const StripContent&, const StripRoom&, const StripLayout& layout) {
    for (std::uint64_t label = 1; label <= layout.labelCount(); ++label) {
      const QRectF place = layout.label(label);
      ASSERT_EQ(layout.labelAt(place.center()), label);
      const StripLayout::Range lanes = layout.lanesIn(place.adjusted(1, 1, -1, -1));
      ASSERT_EQ(lanes.first, layout.laneOf(label));
      ASSERT_EQ(lanes.last, layout.laneOf(label));
      const StripLayout::Lane lane = layout.lane(lanes.first);
      const double inside = std::min(0.25, place.width() / 4);
      const auto seen = layout.labelsIn(lane, place.adjusted(inside, inside, -inside, -inside));
      EXPECT_EQ(seen.first, label);
      EXPECT_EQ(seen.last, label);
    }
  });
}

TEST_F(EachJob, FindsNothingInAGap) {
  forMany([](const StripContent& content, const StripRoom&, const StripLayout& layout) {
    content.plan.forEachEvent([&](const StripEvent& event) {
      if (event.kind != StripEventKind::FullCut || event.label == 0) return;
      if (event.label == layout.labelCount()) return;
      const StripLayout::Lane lane = layout.lane(layout.laneOf(event.label));
      const double gap =
          layout.along(lane, event.label) + layout.line().labelLength() + StripLine::gap() / 2;
      const QRectF place = layout.placed(gap, lane.across + 1, 0, 0);
      EXPECT_EQ(layout.labelAt(place.topLeft()), 0U) << event.label;
    });
  });
}

// Of a job of a hundred million labels any place is found at once.
TEST(StripLayoutTest, AHundredMillionLabelsAreLaidOutAndFound) {
  CutSettings settings = tapeSettings();
  settings.cutsAutomatically = settings.halfCuts = true;
  settings.labelsPerCut = 7;
  StripContent content = jobOf(10'000, settings);
  LabelRun run = content.plan.run();
  run.copies = 10'000;
  content.plan = CutPlan(settings, run);
  const StripLayout layout = layoutOf(content);
  constexpr std::uint64_t kAll = 100'000'000;
  EXPECT_EQ(layout.labelCount(), kAll);
  EXPECT_EQ(layout.lane(layout.laneCount() - 1).last, kAll);
  for (const std::uint64_t label :
       {std::uint64_t{1}, std::uint64_t{7}, std::uint64_t{8}, kAll / 3, kAll - 1, kAll})
    EXPECT_EQ(layout.labelAt(layout.label(label).center()), label);
  const QRectF end(0, layout.size().height() - 100, 1000, 100);
  EXPECT_LT(layout.lanesIn(end).last - layout.lanesIn(end).first, 5U);
}

}  // namespace
}  // namespace cutline::test
