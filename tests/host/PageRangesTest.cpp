#include <gtest/gtest.h>

#include "host/core/PageRanges.h"

namespace cutline {
namespace {

TEST(PageRanges, TakesWhatIppTakes) {
  for (const char* good : {"1", "1-4", "1-4,7", "5-", "1,2,3", "2-2", "1-2,4-"}) {
    const auto ranges = normalizedPageRanges(good);
    ASSERT_TRUE(ranges) << good;
    EXPECT_EQ(*ranges, good);
  }
}

TEST(PageRanges, DropsBlanks) { EXPECT_EQ(*normalizedPageRanges(" 1 - 4 , 7 "), "1-4,7"); }

TEST(PageRanges, NothingMeansAllPages) {
  EXPECT_EQ(*normalizedPageRanges(""), "");
  EXPECT_EQ(*normalizedPageRanges("  "), "");
}

TEST(PageRanges, RefusesWhatIsNoRangeAndQuotesIt) {
  for (const char* bad : {"0", "-3", "a", "1-b", "4-1", "1,,2", "1,", ",1", "1-2-3", "1.5",
                          "99999999999", "+1", "1;2"}) {
    const auto ranges = normalizedPageRanges(bad);
    ASSERT_FALSE(ranges) << bad;
    EXPECT_NE(ranges.error().message.find(bad), std::string::npos);
  }
}

TEST(PageRanges, RefusesPagesOutOfOrder) {
  for (const char* bad : {"4,1", "1-4,4", "1-4,2-3", "5-,7"})
    EXPECT_FALSE(normalizedPageRanges(bad)) << bad;
}

}  // namespace
}  // namespace cutline
