// Which pages of several documents become labels, and how long these are.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"
#include "tests/composition/Pictures.h"

namespace cutline::test {
namespace {

// Pages whose widths are these numbers.
std::string pagesOf(const std::vector<int>& widths) {
  PdfDocument document;
  for (const int width : widths)
    document.addPage("/MediaBox[0 0 " + std::to_string(width) + " 90]", kCornerMark);
  return document.bytes();
}

std::vector<int> widthsOf(const Composed& composed) {
  std::vector<int> widths;
  for (const ComposedPage& page : composed.report().pages)
    widths.push_back(static_cast<int>(page.size.width));
  return widths;
}

std::vector<std::string> threeDocuments() {
  return {pagesOf({11, 12}), pngOf(markedPixels(13, 20)), pagesOf({14, 15, 16})};
}

TEST(PageChoiceTest, PagesCountOverAllDocuments) {
  struct Row {
    const char* ranges;
    PageSet set;
    bool isReversed;
    int most;
    std::vector<int> expected;
  };
  const Row rows[] = {
      {"", PageSet::all, false, 0, {11, 12, 13, 14, 15, 16}},
      {"2-4", PageSet::all, false, 0, {12, 13, 14}},
      {"1,3,5-", PageSet::all, false, 0, {11, 13, 15, 16}},
      {"", PageSet::odd, false, 0, {11, 13, 15}},
      {"", PageSet::even, false, 0, {12, 14, 16}},
      {"2-5", PageSet::even, true, 0, {14, 12}},
      {"", PageSet::all, true, 2, {16, 15}},
      {"", PageSet::all, false, 1, {11}},
      {"3", PageSet::all, false, 9, {13}},
  };
  for (const Row& row : rows) {
    CompositionRequest request = labelRequest();
    request.pages = {*PageRanges::parse(row.ranges), row.set, row.isReversed, row.most};
    const Composed composed(threeDocuments(), request);
    ASSERT_EQ(composed.problem(), std::nullopt) << row.ranges;
    EXPECT_EQ(widthsOf(composed), row.expected) << row.ranges;
    EXPECT_EQ(composed.pages(), static_cast<int>(row.expected.size()));
    EXPECT_EQ(composed.report().documentPages, 6);
  }
}

TEST(PageChoiceTest, WhereAPageIsNotThereItSaysHowManyThereAre) {
  for (const char* ranges : {"7", "1-9", "2,8-9", "12-"}) {
    CompositionRequest request = labelRequest();
    request.pages.ranges = *PageRanges::parse(ranges);
    const Composed composed(threeDocuments(), request);
    ASSERT_EQ(composed.problem(), DocumentProblem::pageMissing);
    EXPECT_EQ(composed.report().failure->detail, "6") << ranges;
  }
}

TEST(PageChoiceTest, NothingChosenIsNothing) {
  CompositionRequest request = labelRequest();
  request.pages.set = PageSet::even;
  EXPECT_EQ(Composed(pagesOf({11}), request).problem(), DocumentProblem::empty);
  EXPECT_EQ(Composed(std::vector<std::string>{}).problem(), DocumentProblem::empty);
}

TEST(PageChoiceTest, TheDocumentThatFailsIsNamed) {
  const std::string damaged = jpegOf(markedPixels(16, 16)).substr(0, 600);
  const std::string good = pagesOf({11});
  for (int place = 0; place < 3; ++place) {
    std::vector<std::string> documents(3, good);
    documents[static_cast<std::size_t>(place)] = damaged;
    const Composed composed(documents);
    ASSERT_EQ(composed.problem(), DocumentProblem::damaged);
    EXPECT_EQ(composed.report().failure->document, place);
  }
  const Composed unknown({good, std::string("\0\1\2", 3)});
  EXPECT_EQ(unknown.problem(), DocumentProblem::unknownKind);
  EXPECT_EQ(unknown.report().failure->document, 1);
  EXPECT_EQ(Composed("%!PS-Adobe-3.0\n").problem(), DocumentProblem::unknownKind);
}

CompositionRequest tapeRequest() {
  CompositionRequest request = labelRequest();
  request.label.isContinuous = true;
  request.label.upright = 90;
  request.lengthBounds = {60, 1000};
  return request;
}

TEST(PageChoiceTest, TapeIsAsLongAsItsLongestPage) {
  // 60 high: they lie along the tape. The margins are 40 together.
  PdfDocument document;
  for (const char* box : {"120 60", "300 60", "61 60"})
    document.addPage(std::string("/MediaBox[0 0 ") + box + "]", kCornerMark);
  const std::string bytes = document.bytes();
  Composed composed(bytes, tapeRequest());
  ASSERT_EQ(composed.problem(), std::nullopt);
  const LabelPage& label = composed.report().label;
  EXPECT_DOUBLE_EQ(label.length, 340);
  EXPECT_DOUBLE_EQ(label.top, 320);
  EXPECT_DOUBLE_EQ(label.bottom, 20);
  EXPECT_DOUBLE_EQ(label.width, 100);
  EXPECT_TRUE(composed.isMarkedAt({20, 310, 30, 320}, 1));
  EXPECT_TRUE(composed.isMarkedAt({20, 220, 30, 230}, 0));
  CompositionRequest first = tapeRequest();
  first.pages.most = 1;
  EXPECT_DOUBLE_EQ(Composed(bytes, first).report().label.length, 160);
}

TEST(PageChoiceTest, TapeIsNoShorterOrLongerThanItCanBeCut) {
  EXPECT_DOUBLE_EQ(Composed(markedPdf(12, 10), tapeRequest()).report().label.length, 60);
  EXPECT_DOUBLE_EQ(Composed(markedPdf(5000, 50), tapeRequest()).report().label.length, 1000);
}

TEST(PageChoiceTest, WithoutALabelThereIsNothingToPrintOn) {
  for (const LabelPage& label :
       {LabelPage{}, LabelPage{100, 0, 0, 0, 100, 0}, LabelPage{100, 100, 60, 0, 50, 100}}) {
    CompositionRequest request = labelRequest();
    request.label = label;
    EXPECT_EQ(Composed(markedPdf(10, 10), request).problem(), DocumentProblem::broken);
  }
}

}  // namespace
}  // namespace cutline::test
