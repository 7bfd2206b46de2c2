// The plan of the job that a model would send.
#include <gtest/gtest.h>

#include "host/core/JobPlan.h"
#include "strip/PlanWords.h"
#include "tests/host/Dialog.h"
#include "tests/support/Command.h"
#include "tests/support/OtherDrivers.h"

namespace cutline {
namespace {

std::shared_ptr<PpdFile> tape() { return *PpdFile::open(test::source("samples/ppd/tape-a.ppd")); }

AskedSettings asked(OptionList options, std::optional<int> copies = std::nullopt,
                    std::optional<std::string> pageRanges = std::nullopt) {
  return {std::move(options), copies, std::move(pageRanges)};
}

CutPlan planOf(const AskedSettings& settings, std::optional<int> pages) {
  Dialog dialog(settings);
  dialog.open(tape());
  return planFor(dialog.model(), pages);
}

TEST(JobPlan, HasTheLabelsLengthAndThePpdsFeeds) {
  const CutPlan plan = planOf({}, 2);
  EXPECT_EQ(plan.labels(), 2U);
  ASSERT_TRUE(plan.tape());
  EXPECT_NEAR(*plan.tape(), 2 * 50 + 8 + 4, 0.01);
}

TEST(JobPlan, FollowsTheMarks) {
  const CutPlan plan =
      planOf(asked({{"LxHalfCut", "ON"}, {"LxCutLabel", "3"}, {"PageSize", "W24H100"}}), 12);
  EXPECT_EQ(plan.pieces(), 4U);
  EXPECT_EQ(plan.halfCuts(), 9U);
  EXPECT_NEAR(*plan.run().labelLength, 100, 0.01);
}

TEST(JobPlan, HasThePagesAndCopiesThatArePrinted) {
  const CutPlan plan = planOf(asked({}, 2, "2-3,7"), 12);
  EXPECT_EQ(plan.labels(), 6U);
  EXPECT_EQ(plan.run().pages, (std::vector<unsigned>{2, 3, 7}));
  EXPECT_EQ(plan.run().pageOf(2), 2U);
  const CutPlan reversed = planOf(asked({{"outputorder", "reverse"}}), 3);
  EXPECT_EQ(reversed.run().pages, (std::vector<unsigned>{3, 2, 1}));
}

// The pages are looked for again where another selection, or another number, asks for it.
TEST(JobPlan, HasThePagesOfTheSelectionThatThereIsNow) {
  Dialog opened(asked({}, 1, "2-3"));
  opened.open(tape());
  EXPECT_EQ(planFor(opened.model(), 12).run().pages, (PageList{2, 3}));
  EXPECT_EQ(planFor(opened.model(), 2).run().pages, (PageList{2}));
  ASSERT_TRUE(opened.model().setPageRanges("1,3-"));
  EXPECT_EQ(planFor(opened.model(), 4).run().pages, (PageList{1, 3, 4}));
  EXPECT_EQ(planFor(opened.model(), 4).run().pages, (PageList{1, 3, 4}));
  JobLayout layout = opened.model().jobLayout();
  layout.isReversed = true;
  opened.model().setJobLayout(layout);
  EXPECT_EQ(planFor(opened.model(), 4).run().pages, (PageList{4, 3, 1}));
  layout.pageSet = PageSet::odd;
  opened.model().setJobLayout(layout);
  EXPECT_EQ(planFor(opened.model(), 4).run().pages, (PageList{3, 1}));
}

TEST(JobPlan, IsCollatedWhereItIsAskedFor) {
  EXPECT_FALSE(planOf(asked({}, 2), 2).run().isCollated);
  const OptionList::value_type ways[] = {
      {"collate", "true"}, {"multiple-document-handling", "separate-documents-collated-copies"}};
  for (const auto& way : ways)
    EXPECT_TRUE(planOf(asked({way}, 2), 2).run().isCollated) << way.first;
  EXPECT_FALSE(planOf(asked({{"collate", "false"}}, 2), 2).run().isCollated);
}

TEST(JobPlan, IsOneLabelWithoutADocument) {
  EXPECT_EQ(planOf(asked({}, std::nullopt, "7"), std::nullopt).labels(), 1U);
  EXPECT_EQ(planOf(asked({}, 3), std::nullopt).labels(), 3U);
}

CutPlan planOf(const test::TestPrinter& printer, const AskedSettings& settings, int pages) {
  Dialog dialog(settings);
  dialog.open(test::ppdFor(printer));
  return planFor(dialog.model(), pages);
}

// A filter that makes the copies itself has its printer see one.
TEST(JobPlan, KnowsWhoMakesTheCopies) {
  const AskedSettings copies = asked({{"CutMedia", "EndOfSet"}, {"collate", "true"}}, 3);
  EXPECT_EQ(planOf(test::cutMediaPrinter(), copies, 2).pieces(), 3U);
  EXPECT_EQ(planOf(test::cutMediaPrinter("", true), copies, 2).pieces(), 1U);
  const AskedSettings repeated = asked({{"CutMedia", "EndOfPage"}}, 3);
  EXPECT_EQ(planOf(test::cutMediaPrinter(test::kLabelFilter), repeated, 2).pieces(), 2U);
  EXPECT_EQ(planOf(test::cutMediaPrinter(test::kLabelFilter, true), repeated, 2).pieces(), 6U);
}

TEST(JobPlan, SaysWhereNobodyKnows) {
  EXPECT_EQ(planSentence(planOf(test::TestPrinter(), {}, 12)).english(),
            "12 labels; this driver says nothing of cutting");
  EXPECT_EQ(planSentence(planOf(test::modePrinter(), {}, 12)).english(),
            "12 labels; the printer decides where to cut");
}

}  // namespace
}  // namespace cutline
