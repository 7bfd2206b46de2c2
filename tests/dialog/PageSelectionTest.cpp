#include <gtest/gtest.h>

#include "host/dialog/PageSelection.h"

namespace cutline {

namespace {

std::string picked(const std::string& ranges, int pages) {
  const PageSelection selection(ranges);
  std::string text;
  for (int page = 0; page < pages; ++page) text += selection.contains(page) ? 'x' : '.';
  return text;
}

struct Case {
  const char* ranges;
  const char* picked;
};

TEST(PageSelectionTest, PicksWhatTheRangesSay) {
  for (const Case& each : {Case{"", "xxxxxx"},
                           {"2", ".x...."},
                           {"1-3,5", "xxx.x."},
                           {"4-", "...xxx"},
                           {"6", ".....x"},
                           {"7-9", "......"}}) {
    EXPECT_EQ(picked(each.ranges, 6), each.picked) << each.ranges;
  }
}

TEST(PageSelectionTest, CountsThePickedPages) {
  EXPECT_EQ(PageSelection("1-3,5").countOf(4), 3);
  EXPECT_EQ(PageSelection().countOf(4), 4);
  EXPECT_EQ(PageSelection("9").countOf(4), 0);
}

}  // namespace

}  // namespace cutline
