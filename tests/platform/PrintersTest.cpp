#include <gtest/gtest.h>

#include "tests/support/Printers.h"

namespace cutline {
namespace {

TEST(Printers, ShowValuesAsTheyAreWritten) {
  EXPECT_EQ(testing::PrintToString(Point{1.5, -2}), "{1.5, -2}");
  EXPECT_EQ(testing::PrintToString(Size{264, 84}), "{264, 84}");
  EXPECT_EQ(testing::PrintToString(Rect{{1, 2}, {3, 4}}), "{{1, 2}, {3, 4}}");
  EXPECT_EQ(testing::PrintToString(TextRange{5, 1}), "{5, 1}");
}

}  // namespace
}  // namespace cutline
