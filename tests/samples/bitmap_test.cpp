#include "samples/printer/Bitmap.h"

#include <gtest/gtest.h>

#include "tests/samples/Dots.h"

namespace cutline::test {
namespace {

using Rows = std::vector<std::string>;

// Wider than a byte, so that the packing shows.
const Rows kRows = {"#........#", "..........", ".##......."};

TEST(Bitmap, HoldsInkWhereItWasPut) { EXPECT_EQ(rowsOf(bitmapOf(kRows)), kRows); }

TEST(Bitmap, TakesNoInkBesideItself) {
  printer::Bitmap bitmap(3, 2);
  for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}}) {
    bitmap.ink(x, y);
    EXPECT_FALSE(bitmap.inkAt(x, y));
  }
  EXPECT_EQ(rowsOf(bitmap), (Rows{"...", "..."}));
}

TEST(Bitmap, KnowsItsBlankRows) {
  const printer::Bitmap bitmap = bitmapOf(kRows);
  EXPECT_FALSE(bitmap.rowIsBlank(0));
  EXPECT_TRUE(bitmap.rowIsBlank(1));
}

TEST(Bitmap, IsMirroredAcrossTheTape) {
  EXPECT_EQ(rowsOf(bitmapOf(kRows).mirroredAcross()),
            (Rows{"#........#", "..........", ".......##."}));
}

TEST(Bitmap, IsMirroredAlongTheTape) {
  EXPECT_EQ(rowsOf(bitmapOf(kRows).mirroredAlong()),
            (Rows{".##.......", "..........", "#........#"}));
}

TEST(Bitmap, GivesAPartOfItsRows) {
  EXPECT_EQ(rowsOf(bitmapOf(kRows).rows(1, 3)), (Rows{"..........", ".##......."}));
}

}  // namespace
}  // namespace cutline::test
