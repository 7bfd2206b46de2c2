// The text forms of what is asked of the composer and what it answers.
#include <gtest/gtest.h>

#include "composition/Composition.h"

namespace cutline {
namespace {

TEST(CompositionFormTest, ARequestComesBackAsItWas) {
  CompositionRequest request;
  request.label = {68.03, 141.73, 2.83, 5.67, 65.2, 136.06, 90, 270, true};
  request.lengthBounds = {28.5, 2834.6};
  request.layout = {Scaling::percent, 92.5, Turn::reversePortrait, Position::topRight};
  request.text = {TextUnit::line, "DejaVu Sans", 9.5};
  request.pages.ranges = *PageRanges::parse("1-4,7");
  request.pages.set = PageSet::even;
  request.pages.isReversed = true;
  request.pages.most = 3;
  request.takesAllWhereFew = true;
  request.isMirrored = true;
  request.names = {"a b.pdf", "two\nlines\\n.txt", ""};

  const auto back = CompositionRequest::parse(request.asText());
  ASSERT_TRUE(back);
  EXPECT_EQ(back->label, request.label);
  EXPECT_EQ(back->lengthBounds, request.lengthBounds);
  EXPECT_EQ(back->layout, request.layout);
  EXPECT_EQ(back->text, request.text);
  EXPECT_EQ(back->pages.ranges.text(), "1-4,7");
  EXPECT_EQ(back->pages.set, PageSet::even);
  EXPECT_TRUE(back->pages.isReversed);
  EXPECT_EQ(back->pages.most, 3);
  EXPECT_TRUE(back->takesAllWhereFew);
  EXPECT_TRUE(back->isMirrored);
  EXPECT_EQ(back->names, request.names);
}

TEST(CompositionFormTest, AReportComesBackAsItWas) {
  CompositionReport report;
  report.label = {68.03, 141.73, 2.83, 5.67, 65.2, 136.06, 90, 90};
  report.documentPages = 12;
  report.isPartial = true;
  report.pages = {{{100, 50, false}, 0.75, 90}, {{10.25, 20}, 1, 0}};
  const auto back = CompositionReport::parse(report.asText());
  ASSERT_TRUE(back);
  EXPECT_FALSE(back->failure);
  EXPECT_EQ(back->label, report.label);
  EXPECT_EQ(back->documentPages, 12);
  EXPECT_TRUE(back->isPartial);
  ASSERT_EQ(back->pages.size(), 2U);
  EXPECT_EQ(back->pages[0].size, report.pages[0].size);
  EXPECT_EQ(back->pages[0].scale, 0.75);
  EXPECT_EQ(back->pages[0].turn, 90);
}

TEST(CompositionFormTest, AFailureComesBackAsItWas) {
  CompositionReport report;
  report.failure = {DocumentProblem::tooManyPages, 2, "100000"};
  const auto back = CompositionReport::parse(report.asText());
  ASSERT_TRUE(back && back->failure);
  EXPECT_EQ(back->failure->problem, DocumentProblem::tooManyPages);
  EXPECT_EQ(back->failure->document, 2);
  EXPECT_EQ(back->failure->detail, "100000");
}

// What a helper that went wrong might write.
TEST(CompositionFormTest, AnythingElseIsNoForm) {
  for (const char* text : {"label 1 2", "page nan 1 1 1 0", "failure 99 0", "detail alone",
                           "layout 0 100 2 0", "layout 0 100 7 0", "unknown 1", "page 1 1 1 1"})
    EXPECT_FALSE(CompositionReport::parse(text) && CompositionRequest::parse(text)) << text;
  EXPECT_FALSE(CompositionReport::parse("page inf 1 1 1 0"));
  EXPECT_FALSE(CompositionRequest::parse("ranges 9-1"));
}

}  // namespace
}  // namespace cutline
