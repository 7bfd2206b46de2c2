#include <gtest/gtest.h>

#include "host/core/JobLayout.h"

namespace cutline {
namespace {

JobLayout layoutOf(const OptionList& options) {
  JobLayout layout;
  applyLayoutOptions(options, layout);
  return layout;
}

TEST(JobLayoutTest, ReadsScalingAsLpDoes) {
  struct Row {
    OptionList options;
    Scaling scaling;
  };
  const Row rows[] = {
      {{}, Scaling::automatic},
      {{{"print-scaling", "auto"}}, Scaling::automatic},
      {{{"print-scaling", "auto-fit"}}, Scaling::automatic},
      {{{"print-scaling", "none"}}, Scaling::actual},
      {{{"print-scaling", "fit"}}, Scaling::fit},
      {{{"print-scaling", "fill"}}, Scaling::fill},
      {{{"fit-to-page", "true"}}, Scaling::fit},
      {{{"fitplot", "true"}}, Scaling::fit},
      {{{"fill", "true"}}, Scaling::fill},
      {{{"natural-scaling", "92"}}, Scaling::percent},
      {{{"natural-scaling", "92"}, {"print-scaling", "fit"}}, Scaling::fit},
      {{{"print-scaling", "fit"}, {"fit-to-page", "false"}}, Scaling::fit},
      {{{"print-scaling", "sideways"}}, Scaling::automatic},
  };
  for (const Row& row : rows)
    EXPECT_EQ(layoutOf(row.options).placing.scaling, row.scaling)
        << (row.options.empty() ? "" : row.options.front().first);
  EXPECT_EQ(layoutOf({{"natural-scaling", "92.5%"}}).placing.percent, 92.5);
}

TEST(JobLayoutTest, ReadsTurnsAndPlacesAsLpDoes) {
  EXPECT_EQ(layoutOf({{"orientation-requested", "3"}}).placing.turn, Turn::portrait);
  EXPECT_EQ(layoutOf({{"orientation-requested", "4"}}).placing.turn, Turn::landscape);
  EXPECT_EQ(layoutOf({{"orientation-requested", "5"}}).placing.turn, Turn::reverseLandscape);
  EXPECT_EQ(layoutOf({{"orientation-requested", "6"}}).placing.turn, Turn::reversePortrait);
  EXPECT_EQ(layoutOf({{"landscape", "true"}}).placing.turn, Turn::landscape);
  EXPECT_EQ(layoutOf({{"position", "top-left"}}).placing.position, Position::topLeft);
  EXPECT_EQ(layoutOf({{"position", "right"}}).placing.position, Position::right);
}

// Whatever a layout is, its options say it all.
TEST(JobLayoutTest, TheOptionsOfALayoutGiveItBack) {
  const OptionList said[] = {
      {},
      {{"print-scaling", "none"}, {"position", "bottom-right"}},
      {{"natural-scaling", "33.25"}, {"orientation-requested", "6"}},
      {{"mirror", "true"}, {"page-set", "even"}, {"outputorder", "reverse"}},
      {{"label-length", "content"}, {"text-labels", "line"}, {"text-size", "9.5"}},
      {{"text-font", "DejaVu Serif"}, {"print-scaling", "fill"}, {"position", "top"}},
  };
  for (const OptionList& options : said) {
    const JobLayout layout = layoutOf(options);
    EXPECT_EQ(layoutOf(layoutOptions(layout)), layout);
    EXPECT_EQ(layoutOptions(layout).size(), options.size());
  }
}

TEST(JobLayoutTest, AWrongValueListsTheRightOnes) {
  EXPECT_TRUE(checkLayoutOption("print-scaling", "fit"));
  EXPECT_TRUE(checkLayoutOption("natural-scaling", "50"));
  EXPECT_TRUE(checkLayoutOption("text-size", "auto"));
  EXPECT_TRUE(checkLayoutOption("LxHalfCut", "whatever"));
  struct Row {
    const char* name;
    const char* value;
    const char* part;
  };
  const Row rows[] = {{"print-scaling", "92%", "auto, auto-fit, none, fit, fill"},
                      {"orientation-requested", "7", "3, 4, 5, 6"},
                      {"natural-scaling", "0", "1 to 1000"},
                      {"natural-scaling", "nan", "1 to 1000"},
                      {"position", "middle", "center"},
                      {"text-labels", "word", "paragraph, line"},
                      {"text-size", "big", "auto"}};
  for (const Row& row : rows) {
    const Result<Done> checked = checkLayoutOption(row.name, row.value);
    ASSERT_FALSE(checked) << row.name;
    EXPECT_NE(checked.error().message.find(row.part), std::string::npos) << checked.error().message;
  }
}

TEST(JobLayoutTest, NothingThatWasSavedLaysTheDocumentOutAgain) {
  const OptionList saved = {{"LxHalfCut", "ON"},     {"print-scaling", "fit"},
                            {"number-up", "4"},      {"booklet", "true"},
                            {"page-ranges", "2-3"},  {"landscape", "true"},
                            {"raw", "true"},         {"position", "top"},
                            {"job-priority", "70"},  {"page-border", "double"},
                            {"ppi", "300"},          {"mirror", "true"},
                            {"text-labels", "line"}, {"document-format", "text/plain"}};
  const OptionList expected = {{"LxHalfCut", "ON"},
                               {"job-priority", "70"},
                               {"print-scaling", "none"},
                               {"page-ranges", "1-99999"},
                               {"booklet", "false"},
                               {"number-up", "1"},
                               {"orientation-requested", "3"},
                               {"page-set", "all"},
                               {"outputorder", "normal"},
                               {"landscape", "false"},
                               {"mirror", "false"},
                               {"page-border", "none"},
                               {"page-label", ""},
                               {"fit-to-page", "false"},
                               {"job-sheets", "none"}};
  EXPECT_EQ(forLaidOutDocument(saved), expected);
}

TEST(JobLayout, SheetsAroundTheJobArePrintedForWhoAsksForThem) {
  const OptionList sent = forLaidOutDocument({{"job-sheets", "standard,none"}});
  EXPECT_EQ(
      std::count(sent.begin(), sent.end(), OptionList::value_type("job-sheets", "standard,none")),
      1);
  EXPECT_EQ(std::count(sent.begin(), sent.end(), OptionList::value_type("job-sheets", "none")), 0);
}

}  // namespace
}  // namespace cutline
