#include <gtest/gtest.h>

#include <algorithm>

#include "composition/Layout.h"

namespace cutline {
namespace {

// 24 x 50 mm, with margins of 1 and 2 mm.
constexpr LabelPage kTape{68, 142, 3, 6, 65, 136, 90, 90};
constexpr LabelPage kRoll{176, 82, 3, 6, 173, 76, 0, 90};
constexpr LabelPage kCounterclockwise{68, 142, 3, 6, 65, 136, 270, 270};
constexpr LabelPage kSquare{68, 68, 3, 6, 65, 62, 90, 90};

struct TurnRow {
  PageSize page;
  LabelPage label;
  Turn turn;
  int expected;
};

TEST(LayoutTest, APageIsTurnedWhereItLiesTheOtherWayThanThePaper) {
  const TurnRow rows[] = {
      {{68, 142}, kTape, Turn::automatic, 0},
      {{142, 68}, kTape, Turn::automatic, 90},
      {{142, 68}, kCounterclockwise, Turn::automatic, 270},
      {{176, 82}, kRoll, Turn::automatic, 0},
      {{82, 176}, kRoll, Turn::automatic, 90},
      {{100, 100}, kTape, Turn::automatic, 90},
      {{100, 100}, kRoll, Turn::automatic, 0},
      {{142, 68}, kSquare, Turn::automatic, 90},
      {{68, 142}, kSquare, Turn::automatic, 90},
      {{142, 68}, kTape, Turn::portrait, 0},
      {{142, 68}, kTape, Turn::landscape, 270},
      {{142, 68}, kTape, Turn::reverseLandscape, 90},
      {{142, 68}, kTape, Turn::reversePortrait, 180},
  };
  for (const TurnRow& row : rows)
    EXPECT_EQ(turnOf(row.page, row.label, row.turn), row.expected)
        << row.page.width << "x" << row.page.height << " turn " << static_cast<int>(row.turn);
}

TEST(LayoutTest, TapeOfAnyLengthCountsAsLong) {
  LabelPage tape = kTape;
  tape.isContinuous = true;
  tape.length = tape.top = 20;
  EXPECT_EQ(turnOf({142, 68}, tape, Turn::automatic), 90);
  EXPECT_EQ(turnOf({68, 142}, tape, Turn::automatic), 0);
}

struct Corner {
  double x, y;
};

Corner corner(const Placement& at, double x, double y) {
  return {at.a * x + at.c * y + at.e, at.b * x + at.d * y + at.f};
}

TEST(LayoutTest, APageOfThePapersSizeCoversItExactly) {
  const Placement upright = placed({68, 142}, kTape, {});
  EXPECT_EQ(corner(upright, 0, 0).x, 0);
  EXPECT_EQ(corner(upright, 68, 142).y, 142);
  const Placement turned = placed({142, 68}, kTape, {});
  // The left edge of what is read along the tape is the paper's top.
  EXPECT_EQ(corner(turned, 0, 0).x, 0);
  EXPECT_EQ(corner(turned, 0, 0).y, 142);
  EXPECT_EQ(corner(turned, 142, 68).x, 68);
  EXPECT_EQ(corner(turned, 142, 68).y, 0);
  EXPECT_EQ(turned.scale, 1);
}

TEST(LayoutTest, EachTurnKeepsThePageOnTheLabel) {
  for (const Turn turn :
       {Turn::portrait, Turn::landscape, Turn::reverseLandscape, Turn::reversePortrait}) {
    LayoutSettings settings;
    settings.turn = turn;
    settings.scaling = Scaling::fit;
    const Placement at = placed({142, 68}, kTape, settings);
    for (const Corner& each :
         {corner(at, 0, 0), corner(at, 142, 0), corner(at, 0, 68), corner(at, 142, 68)}) {
      EXPECT_GE(each.x, kTape.left - 1e-6);
      EXPECT_LE(each.x, kTape.right + 1e-6);
      EXPECT_GE(each.y, kTape.bottom - 1e-6);
      EXPECT_LE(each.y, kTape.top + 1e-6);
    }
  }
}

TEST(LayoutTest, ScalesAsAsked) {
  struct Row {
    PageSize page;
    Scaling scaling;
    double expected;
  };
  const Row rows[] = {
      {{34, 71}, Scaling::automatic, 1},
      {{136, 284}, Scaling::automatic, 62.0 / 136},
      {{34, 71, false}, Scaling::automatic, 62.0 / 34},
      {{136, 284}, Scaling::actual, 1},
      {{34, 71}, Scaling::fit, 62.0 / 34},
      {{34, 71}, Scaling::fill, 130.0 / 71},
      {{34, 71}, Scaling::percent, 0.5},
  };
  for (const Row& row : rows) {
    LayoutSettings settings;
    settings.scaling = row.scaling;
    settings.percent = 50;
    EXPECT_DOUBLE_EQ(placed(row.page, kTape, settings).scale, row.expected)
        << static_cast<int>(row.scaling);
  }
}

TEST(LayoutTest, WhatFitsLiesBetweenTheMargins) {
  struct Row {
    Position position;
    double x, y;
  };
  const Row rows[] = {
      {Position::center, 24, 61},    {Position::top, 24, 116},     {Position::bottom, 24, 6},
      {Position::left, 3, 61},       {Position::right, 45, 61},    {Position::topLeft, 3, 116},
      {Position::topRight, 45, 116}, {Position::bottomLeft, 3, 6}, {Position::bottomRight, 45, 6},
  };
  for (const Row& row : rows) {
    LayoutSettings settings;
    settings.position = row.position;
    settings.turn = Turn::portrait;
    const Placement at = placed({20, 20}, kTape, settings);
    EXPECT_DOUBLE_EQ(at.e, row.x) << static_cast<int>(row.position);
    EXPECT_DOUBLE_EQ(at.f, row.y) << static_cast<int>(row.position);
  }
}

TEST(LayoutTest, FillingCoversEverythingThatCanBePrinted) {
  LayoutSettings settings;
  settings.scaling = Scaling::fill;
  const Placement at = placed({50, 50}, kTape, settings);
  const Corner low = corner(at, 50, 0);
  const Corner high = corner(at, 0, 50);
  EXPECT_LE(std::min(low.x, high.x), kTape.left);
  EXPECT_GE(std::max(low.x, high.x), kTape.right);
  EXPECT_LE(std::min(low.y, high.y), kTape.bottom);
  EXPECT_GE(std::max(low.y, high.y), kTape.top);
}

TEST(LayoutTest, TapeIsAsLongAsItsContentAndItsMargins) {
  const LengthBounds bounds{30, 400};
  EXPECT_DOUBLE_EQ(lengthFor({100, 40}, kTape, {}, bounds), 112);
  EXPECT_DOUBLE_EQ(lengthFor({5, 4}, kTape, {}, bounds), 30);
  EXPECT_DOUBLE_EQ(lengthFor({1000, 40}, kTape, {}, bounds), 400);
  // Wider than the tape: made to fit across it.
  EXPECT_DOUBLE_EQ(lengthFor({200, 124}, kTape, {}, bounds), 112);
  EXPECT_DOUBLE_EQ(lengthFor({100, 31, false}, kTape, {}, bounds), 212);
}

TEST(LayoutTest, SaysWhatSizeLosesNothing) {
  const PageSize page{142, 68};
  EXPECT_EQ(percentWithoutLoss(page, kTape, {}, {3, 6, 65, 136}), std::nullopt);
  // The whole paper is covered: 130 of 142 points along, 62 of 68 across.
  EXPECT_EQ(percentWithoutLoss(page, kTape, {}, {0, 0, 68, 142}), 91);
  // One end alone reaches too far.
  EXPECT_EQ(percentWithoutLoss(page, kTape, {}, {20, 3, 40, 70}), 95);
}

}  // namespace
}  // namespace cutline
