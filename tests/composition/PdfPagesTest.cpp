// Where the pages of a PDF come to lie on labels of 100 by 200 points, with margins of 10 and 20.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

QPDFObjectHandle firstPage(QPDF& pdf, const Composed& composed) {
  pdf.processMemoryFile("labels", composed.pdf().data(), composed.pdf().size());
  return pdf.getAllPages().at(0);
}

TEST(PdfPagesTest, APageOfTheLabelsSizeCoversIt) {
  Composed composed(markedPdf(100, 200));
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_EQ(composed.pages(), 1);
  EXPECT_TRUE(composed.isMarkedAt({0, 0, 10, 10}));
}

TEST(PdfPagesTest, LabelsAreExactlyAsLargeAsTheirPaper) {
  CompositionRequest request = labelRequest();
  request.label.width = 68.03149606299213;
  request.label.length = 141.7322834645669;
  const Composed composed(markedPdf(10, 20), request);
  QPDF pdf;
  QPDFObjectHandle box = firstPage(pdf, composed).getKey("/MediaBox");
  EXPECT_EQ(box.getArrayItem(2).getNumericValue(), 68.03149606299213);
  EXPECT_EQ(box.getArrayItem(3).getNumericValue(), 141.7322834645669);
}

struct FrameRow {
  const char* entries;
  const char* content;
  PageSize size;
  Area mark;
};

// Each page is shown upright in the middle of the label.
TEST(PdfPagesTest, APageIsShownAsItsEntriesSay) {
  const FrameRow rows[] = {
      {"/MediaBox[0 0 40 80]", kCornerMark, {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 40 80]/Rotate 90", kCornerMark, {80, 40}, {10, 110, 20, 120}},
      {"/MediaBox[0 0 40 80]/Rotate 180", kCornerMark, {40, 80}, {60, 130, 70, 140}},
      {"/MediaBox[0 0 40 80]/Rotate 270", kCornerMark, {80, 40}, {80, 80, 90, 90}},
      {"/MediaBox[0 0 40 80]/Rotate -90", kCornerMark, {80, 40}, {80, 80, 90, 90}},
      {"/MediaBox[0 0 40 80]/Rotate 450", kCornerMark, {80, 40}, {10, 110, 20, 120}},
      {"/MediaBox[0 0 40 80]/Rotate 45", kCornerMark, {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 40 80]/Rotate 90.5", kCornerMark, {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 40 80]/Rotate/East", kCornerMark, {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[-20 -10 20 70]", "-20 -10 10 10 re f", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[40 80 0 0]", kCornerMark, {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 20 40]/UserUnit 2", "0 0 5 5 re f", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 20 40]/UserUnit 2/Rotate 90", "0 0 5 5 re f", {80, 40}, {10, 110, 20, 120}},
      {"/MediaBox[0 0 40 80]/UserUnit -1", kCornerMark, {40, 80}, {30, 60, 40, 70}},
  };
  CompositionRequest request = labelRequest();
  request.layout.turn = Turn::portrait;
  for (const FrameRow& row : rows) {
    PdfDocument document;
    document.addPage(row.entries, row.content);
    Composed composed(document.bytes(), request);
    ASSERT_EQ(composed.problem(), std::nullopt) << row.entries;
    EXPECT_EQ(composed.report().pages[0].size, row.size) << row.entries;
    EXPECT_TRUE(composed.isMarkedAt(row.mark)) << row.entries;
  }
}

// What lies outside of the part that is shown is black as well, and must not be seen.
TEST(PdfPagesTest, OnlyTheCropBoxIsShown) {
  const FrameRow rows[] = {
      {"/MediaBox[0 0 500 500]/CropBox[100 100 140 180]", "", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[0 0 500 500]/CropBox[100 100 140 180]/TrimBox[110 110 120 120]",
       "",
       {40, 80},
       {30, 60, 40, 70}},
      {"/MediaBox[0 0 500 500]/CropBox[100 100 140 180]/Rotate 180",
       "",
       {40, 80},
       {60, 130, 70, 140}},
      // No more than there is of the page.
      {"/MediaBox[100 100 140 180]/CropBox[0 0 500 500]", "", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[100 100 140 180]/CropBox[0 0 50 50]", "", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[100 100 140 180]/CropBox[0 0 (a) 50]", "", {40, 80}, {30, 60, 40, 70}},
      {"/MediaBox[100 100 140 180]/CropBox[110 110 110 150]", "", {40, 80}, {30, 60, 40, 70}},
  };
  CompositionRequest request = labelRequest();
  request.layout.turn = Turn::portrait;
  for (const FrameRow& row : rows) {
    PdfDocument document;
    document.addPage(row.entries, "0 0 500 500 re 100 100 40 80 re f* 100 100 10 10 re f");
    Composed composed(document.bytes(), request);
    ASSERT_EQ(composed.problem(), std::nullopt) << row.entries;
    EXPECT_EQ(composed.report().pages[0].size, row.size) << row.entries;
    EXPECT_TRUE(composed.isMarkedAt(row.mark)) << row.entries;
    EXPECT_TRUE(composed.isWhiteAt(29, 100)) << row.entries;
    EXPECT_TRUE(composed.isWhiteAt(50, 141)) << row.entries;
  }
}

TEST(PdfPagesTest, APageInheritsFromTheTreeThatItHangsOn) {
  PdfDocument document;
  document.addPage("", kCornerMark);
  QPDFObjectHandle tree = document.pdf().getRoot().getKey("/Pages");
  tree.replaceKey("/MediaBox", QPDFObjectHandle::parse("[0 0 200 200]"));
  tree.replaceKey("/CropBox", QPDFObjectHandle::parse("[0 0 40 80]"));
  tree.replaceKey("/Rotate", QPDFObjectHandle::newInteger(180));
  Composed composed(document.bytes());
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_TRUE(composed.isMarkedAt({60, 130, 70, 140}));
}

TEST(PdfPagesTest, APageIsTurnedAsAsked) {
  const struct {
    Turn turn;
    int degrees;
    Area mark;
  } rows[] = {
      {Turn::automatic, 0, {30, 60, 40, 70}},
      {Turn::portrait, 0, {30, 60, 40, 70}},
      {Turn::reverseLandscape, 90, {10, 110, 20, 120}},
      {Turn::reversePortrait, 180, {60, 130, 70, 140}},
      {Turn::landscape, 270, {80, 80, 90, 90}},
  };
  for (const auto& row : rows) {
    CompositionRequest request = labelRequest();
    request.layout.turn = row.turn;
    Composed upright(markedPdf(40, 80), request);
    EXPECT_EQ(upright.report().pages.at(0).turn, row.degrees);
    EXPECT_TRUE(upright.isMarkedAt(row.mark)) << row.degrees;
    // Mirrored about the paper's axis, after the turn.
    request.isMirrored = true;
    Composed mirrored(markedPdf(40, 80), request);
    EXPECT_TRUE(mirrored.isMarkedAt(
        {100 - row.mark.right, row.mark.bottom, 100 - row.mark.left, row.mark.top}))
        << row.degrees;
  }
}

TEST(PdfPagesTest, AWidePageIsTurnedOntoATallLabel) {
  for (const int landscape : {90, 270}) {
    CompositionRequest request = labelRequest();
    request.label.landscape = landscape;
    Composed composed(markedPdf(80, 40), request);
    EXPECT_EQ(composed.report().pages.at(0).turn, landscape);
    EXPECT_TRUE(
        composed.isMarkedAt(landscape == 90 ? Area{30, 130, 40, 140} : Area{60, 60, 70, 70}));
  }
}

TEST(PdfPagesTest, APageIsPlacedAsAsked) {
  const struct {
    Position position;
    double x, y;
  } rows[] = {
      {Position::center, 30, 60},      {Position::top, 30, 100},
      {Position::bottom, 30, 20},      {Position::left, 10, 60},
      {Position::right, 50, 60},       {Position::topLeft, 10, 100},
      {Position::topRight, 50, 100},   {Position::bottomLeft, 10, 20},
      {Position::bottomRight, 50, 20},
  };
  for (const auto& row : rows) {
    CompositionRequest request = labelRequest();
    request.layout.position = row.position;
    Composed composed(markedPdf(40, 80), request);
    EXPECT_TRUE(composed.isMarkedAt({row.x, row.y, row.x + 10, row.y + 10}))
        << static_cast<int>(row.position);
  }
}

TEST(PdfPagesTest, APageIsScaledAsAsked) {
  const struct {
    Scaling scaling;
    double width, height;
    double scale;
    Area mark;
  } rows[] = {
      {Scaling::automatic, 20, 40, 1, {40, 80, 50, 90}},
      {Scaling::automatic, 160, 320, 0.5, {10, 20, 15, 25}},
      {Scaling::actual, 90, 190, 1, {5, 5, 15, 15}},
      {Scaling::fit, 20, 80, 2, {30, 20, 50, 40}},
      {Scaling::fill, 80, 80, 2, {-30, 20, -10, 40}},
      {Scaling::percent, 20, 40, 1.5, {35, 70, 50, 85}},
  };
  for (const auto& row : rows) {
    CompositionRequest request = labelRequest();
    request.layout.scaling = row.scaling;
    request.layout.percent = 150;
    Composed composed(markedPdf(row.width, row.height), request);
    EXPECT_DOUBLE_EQ(composed.report().pages.at(0).scale, row.scale);
    if (row.mark.right > 0) {
      EXPECT_TRUE(composed.isMarkedAt(row.mark)) << static_cast<int>(row.scaling);
    }
  }
}

TEST(PdfPagesTest, AFilledLabelShowsThePagesMiddle) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 80 80]", "40 0 10 10 re f");
  CompositionRequest request = labelRequest();
  request.layout.scaling = Scaling::fill;
  EXPECT_TRUE(Composed(document.bytes(), request).isMarkedAt({50, 20, 70, 40}));
}

// Too much to be read at once.
TEST(PdfPagesTest, APdfOfManyMegabytesIsAPageLikeAnyOther) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 40 80]",
                   kCornerMark + std::string(std::size_t{17} * 1024 * 1024, ' '));
  const std::string pdf =
      document.bytes([](QPDFWriter& writer) { writer.setCompressStreams(false); });
  ASSERT_GT(pdf.size(), std::size_t{16} * 1024 * 1024);
  CompositionRequest request = labelRequest();
  request.layout.turn = Turn::portrait;
  Composed composed(pdf, request);
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_TRUE(composed.isMarkedAt({30, 60, 40, 70}));
}

}  // namespace
}  // namespace cutline::test
