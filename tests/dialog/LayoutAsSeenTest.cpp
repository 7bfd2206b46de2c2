#include <gtest/gtest.h>

#include "host/dialog/LayoutAsSeen.h"

namespace cutline {

namespace {

constexpr Position kPlaces[] = {Position::center,   Position::top,        Position::bottom,
                                Position::left,     Position::right,      Position::topLeft,
                                Position::topRight, Position::bottomLeft, Position::bottomRight};

class LayoutAsSeen : public testing::TestWithParam<int> {
 protected:
  LayoutAsSeen() { mLabel.upright = GetParam(); }
  LabelPage mLabel{68, 142, 4, 4, 64, 138};
};

TEST_P(LayoutAsSeen, EachTurnComesBack) {
  for (const int degrees : {0, 90, 180, 270})
    EXPECT_EQ(turnAsSeen(turnOnPaper(degrees, mLabel), mLabel), degrees);
  EXPECT_EQ(turnOnPaper(std::nullopt, mLabel), Turn::automatic);
  EXPECT_EQ(turnAsSeen(Turn::automatic, mLabel), std::nullopt);
}

TEST_P(LayoutAsSeen, EachPlaceComesBack) {
  for (const Position place : kPlaces)
    EXPECT_EQ(placeAsSeen(placeOnPaper(place, mLabel), mLabel), place);
}

// What the composer does with a turn, seen by somebody who holds the paper upright.
TEST_P(LayoutAsSeen, APageTurnedBySoManyDegreesIsComposedSo) {
  for (const int degrees : {0, 90, 180, 270}) {
    const int onPaper = turnOf({30, 20}, mLabel, turnOnPaper(degrees, mLabel));
    EXPECT_EQ((onPaper - mLabel.upright + 360) % 360, degrees);
  }
}

// A small page, placed by the composer, lies at the edge that was named. Seen from the paper's own
// lower left corner: on a tape the paper's top is at a reader's left.
TEST_P(LayoutAsSeen, APageAtTheLeftIsComposedThere) {
  LayoutSettings settings;
  settings.position = placeOnPaper(Position::left, mLabel);
  const Placement at = placed({10, 10}, mLabel, settings);
  const double x = at.e + (at.a + at.c) * 5;
  const double y = at.f + (at.b + at.d) * 5;
  const bool isThere[] = {x<10, y> 130, x > 58, y < 10};
  EXPECT_TRUE(isThere[GetParam() / 90]) << x << ' ' << y;
}

INSTANTIATE_TEST_SUITE_P(Upright, LayoutAsSeen, testing::Values(0, 90, 180, 270));

TEST(PlacesOnATape, LieAQuarterRound) {
  LabelPage tape{68, 142, 4, 4, 64, 138};
  tape.upright = 90;
  EXPECT_EQ(placeOnPaper(Position::left, tape), Position::top);
  EXPECT_EQ(placeOnPaper(Position::topLeft, tape), Position::topRight);
  EXPECT_EQ(placeOnPaper(Position::bottom, tape), Position::left);
}

}  // namespace

}  // namespace cutline
