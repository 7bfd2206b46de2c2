// Which pages are printed, and in which order.
#include <gtest/gtest.h>

#include "composition/PickedPages.h"

namespace cutline::test {
namespace {

using Pages = std::vector<int>;

PageSelection ranges(const char* text) {
  PageSelection selection;
  selection.ranges = *PageRanges::parse(text);
  return selection;
}

TEST(PickedPagesTest, AreAllWithoutASelection) {
  EXPECT_EQ(pickedPages({}, 3), (Pages{0, 1, 2}));
  EXPECT_EQ(pickedPages({}, 0), Pages());
}

TEST(PickedPagesTest, AreThoseOfTheRangesThatAreThere) {
  EXPECT_EQ(pickedPages(ranges("2-3,5"), 9), (Pages{1, 2, 4}));
  EXPECT_EQ(pickedPages(ranges("2-3,5"), 2), (Pages{1}));
}

TEST(PickedPagesTest, AreOddOrEvenAsPeopleCount) {
  EXPECT_EQ(pickedPages({.ranges = {}, .set = PageSet::odd}, 5), (Pages{0, 2, 4}));
  EXPECT_EQ(pickedPages({.ranges = {}, .set = PageSet::even}, 5), (Pages{1, 3}));
}

TEST(PickedPagesTest, AreTurnedRoundBeforeTheyAreCounted) {
  EXPECT_EQ(pickedPages({.ranges = {}, .isReversed = true, .most = 2}, 5), (Pages{4, 3}));
  EXPECT_EQ(pickedPages({.ranges = {}, .most = 9}, 2), (Pages{0, 1}));
}

}  // namespace
}  // namespace cutline::test
