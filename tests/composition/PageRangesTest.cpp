#include <gtest/gtest.h>

#include "composition/PageRanges.h"

namespace cutline {
namespace {

TEST(PageRanges, TakesWhatIppTakes) {
  for (const char* good : {"1", "1-4", "1-4,7", "5-", "1,2,3", "2-2", "1-2,4-"}) {
    const auto ranges = PageRanges::parse(good);
    ASSERT_TRUE(ranges) << good;
    EXPECT_EQ(ranges->text(), good);
  }
}

TEST(PageRanges, DropsBlanks) { EXPECT_EQ(PageRanges::parse(" 1 - 4 , 7 ")->text(), "1-4,7"); }

TEST(PageRanges, NothingMeansAllPages) {
  EXPECT_EQ(PageRanges::parse("")->text(), "");
  EXPECT_EQ(PageRanges::parse("  ")->text(), "");
}

TEST(PageRanges, RefusesWhatIsNoRangeAndQuotesIt) {
  for (const char* bad : {"0", "-3", "a", "1-b", "4-1", "1,,2", "1,", ",1", "1-2-3", "1.5",
                          "99999999999", "+1", "1;2"}) {
    const auto ranges = PageRanges::parse(bad);
    ASSERT_FALSE(ranges) << bad;
    EXPECT_NE(ranges.error().message.find(bad), std::string::npos);
  }
}

TEST(PageRanges, SaysWhatIsWrong) {
  const auto problem = [](const char* text) { return PageRanges::parse(text).error().message; };
  EXPECT_EQ(problem("1,5-3"), "page range \"1,5-3\": 5-3 runs backwards: write 3-5");
  EXPECT_EQ(problem("0"), "page range \"0\": pages are counted from 1");
  EXPECT_EQ(problem("1,,2"),
            "page range \"1,,2\": a page is missing beside a comma; write pages such as 1-3,5");
  EXPECT_EQ(problem("x"), "page range \"x\": \"x\" is no page; write pages such as 1-3,5");
  EXPECT_EQ(problem("-3"), "page range \"-3\": -3 has no first page: write 1-3");
  EXPECT_EQ(PageRanges::parse("2")->checkWithin(1).error().message,
            "page range \"2\": the document has 1 page only");
}

TEST(PageRanges, RefusesPagesOutOfOrder) {
  for (const char* bad : {"4,1", "1-4,4", "1-4,2-3", "5-,7"})
    EXPECT_FALSE(PageRanges::parse(bad)) << bad;
}

std::string picked(const std::string& ranges, int pages) {
  const PageRanges selection = *PageRanges::parse(ranges);
  std::string text;
  for (int page = 0; page < pages; ++page) text += selection.contains(page) ? 'x' : '.';
  return text;
}

struct Case {
  const char* ranges;
  const char* picked;
};

TEST(PageRanges, PicksWhatTheRangesSay) {
  for (const Case& each : {Case{"", "xxxxxx"},
                           {"2", ".x...."},
                           {"1-3,5", "xxx.x."},
                           {"4-", "...xxx"},
                           {"6", ".....x"},
                           {"7-9", "......"}}) {
    EXPECT_EQ(picked(each.ranges, 6), each.picked) << each.ranges;
  }
}

TEST(PageRanges, CountsThePickedPages) {
  EXPECT_EQ(PageRanges::parse("1-3,5")->countOf(4), 3);
  EXPECT_EQ(PageRanges().countOf(4), 4);
  EXPECT_EQ(PageRanges::parse("9")->countOf(4), 0);
}

TEST(PageRanges, EachPageThatIsNamedMustBeThere) {
  for (const char* within : {"", "1-12", "12", "1,12", "12-", "3-"})
    EXPECT_TRUE(PageRanges::parse(within)->checkWithin(12)) << within;
  for (const char* beyond : {"13", "1-13", "1,20-30", "13-"})
    EXPECT_FALSE(PageRanges::parse(beyond)->checkWithin(12)) << beyond;
  EXPECT_EQ(PageRanges::parse("10-20")->checkWithin(12).error().message,
            "page range \"10-20\": the document has 12 pages, and no page 13");
}

}  // namespace
}  // namespace cutline
