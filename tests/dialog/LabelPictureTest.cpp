#include <gtest/gtest.h>

#include <QPainter>

#include "composition/LabelInk.h"
#include "host/dialog/LabelPicture.h"

namespace cutline {

namespace {

constexpr std::uint32_t kWhite = 0xffffffff;
constexpr std::uint32_t kBlack = 0xff000000;
constexpr std::uint32_t kBlue = 0xff0000ff;

// 4 points wide and 6 long, with a margin of one point; pictures have a pixel a point.
LabelPage labelAt(int upright) {
  LabelPage label{4, 6, 1, 1, 3, 5};
  label.upright = upright;
  return label;
}

PageImage blank() { return {4, 6, std::vector<std::uint32_t>(24, kWhite)}; }

PageImage withPixel(int column, int row, std::uint32_t colour) {
  PageImage page = blank();
  page.pixels[static_cast<std::size_t>(row) * 4 + column] = colour;
  return page;
}

struct Corner {
  int upright;
  QPoint paperTopLeft;  // where the paper's upper left corner is seen
  QSize size;
};

class LabelPictureTurn : public testing::TestWithParam<Corner> {};

TEST_P(LabelPictureTurn, ShowsThePaperAsAReaderHoldsIt) {
  const Corner expected = GetParam();
  const QImage picture = pictureOf(withPixel(0, 0, kBlack), 1, labelAt(expected.upright), {});
  EXPECT_EQ(picture.size(), expected.size);
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      const bool isWhite = picture.pixel(x, y) == kWhite;
      EXPECT_EQ(isWhite, QPoint(x, y) != expected.paperTopLeft) << x << ' ' << y;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Turns, LabelPictureTurn,
                         testing::Values(Corner{0, {0, 0}, {4, 6}}, Corner{90, {0, 3}, {6, 4}},
                                         Corner{180, {3, 5}, {4, 6}}, Corner{270, {5, 0}, {6, 4}}),
                         [](const auto& test) { return std::to_string(test.param.upright); });

TEST(LabelPicture, WhatIsPrintedKeepsItsColour) {
  EXPECT_EQ(pictureOf(withPixel(1, 1, kBlue), 1, labelAt(0), {}).pixel(1, 1), kBlue);
}

TEST(LabelPicture, APrinterWithoutColoursShowsGreys) {
  const QRgb shown = pictureOf(withPixel(1, 1, kBlue), 1, labelAt(0), {true}).pixel(1, 1);
  EXPECT_EQ(shown, qRgb(qGray(kBlue), qGray(kBlue), qGray(kBlue)));
  EXPECT_LT(qGray(shown), 128);
}

TEST(LabelPicture, InkOutsideThePrintableAreaIsRed) {
  for (const auto& [column, row] : {std::pair{0, 2}, {3, 2}, {2, 0}, {2, 5}}) {
    const QRgb shown =
        pictureOf(withPixel(column, row, kBlack), 1, labelAt(0), {}).pixel(column, row);
    EXPECT_GT(qRed(shown), qGreen(shown) + 80) << column << ' ' << row;
    EXPECT_GT(qGreen(shown), 40) << "the tape shines through";
  }
}

TEST(LabelPicture, FaintInkIsFaintlyRed) {
  const QRgb dark = pictureOf(withPixel(0, 2, kBlack), 1, labelAt(0), {}).pixel(0, 2);
  const QRgb faint = pictureOf(withPixel(0, 2, 0xffc0c0c0), 1, labelAt(0), {}).pixel(0, 2);
  EXPECT_GT(qGreen(faint), qGreen(dark) + 60);
  EXPECT_LT(qGreen(faint), 255);
}

TEST(LabelPicture, PaperOutsideThePrintableAreaStaysWhite) {
  const QImage picture = pictureOf(withPixel(0, 2, kBlack), 1, labelAt(0), {});
  EXPECT_EQ(picture.pixel(0, 3), kWhite);
  EXPECT_EQ(picture.pixel(3, 5), kWhite);
}

TEST(Ink, ThereIsNoneOnAnEmptyLabel) { EXPECT_FALSE(inkOf(blank(), 1, labelAt(0))); }

TEST(Ink, APixelTellsWhereItReachesToAtMostAndAtLeast) {
  const auto ink = inkOf(withPixel(1, 2, kBlack), 1, labelAt(0));
  ASSERT_TRUE(ink);
  EXPECT_EQ(ink->perhaps, (Area{1, 3, 2, 4}));
  // It is somewhere in the pixel: it begins before its right edge and ends behind its left one.
  EXPECT_EQ(ink->surely, (Area{2, 4, 1, 3}));
}

TEST(Ink, IsCountedInPointsOfThePaperAtAnyScale) {
  PageImage page{8, 12, std::vector<std::uint32_t>(96, kBlack)};
  const auto ink = inkOf(page, 2, labelAt(90));
  ASSERT_TRUE(ink);
  EXPECT_EQ(ink->perhaps, (Area{0, 0, 4, 6}));
  EXPECT_EQ(ink->surely, (Area{0.5, 0.5, 3.5, 5.5}));
}

TEST(Ink, WhatIsNearlyWhiteIsNone) {
  EXPECT_FALSE(inkOf(withPixel(1, 2, 0xfff0f0f0), 1, labelAt(0)));
}

// `picture` over a ground, as the preview lays it.
QImage laidOn(const QImage& ground, const QImage& picture, QPainter::CompositionMode mode) {
  QImage result = ground;
  QPainter painter(&result);
  painter.setCompositionMode(mode);
  painter.drawImage(0, 0, picture);
  return result;
}

TEST(InkAlone, LooksLikeThePictureThatColoursTheTape) {
  QImage picture(256, 1, QImage::Format_RGB32);
  for (int grey = 0; grey < 256; ++grey) picture.setPixel(grey, 0, qRgb(grey, grey, grey));
  const QImage ink = inkAlone(picture);
  ASSERT_TRUE(ink.hasAlphaChannel());
  for (const QRgb tape : {0xfffdfdfb, 0xffe6eef8, 0xff000000}) {
    QImage ground(256, 1, QImage::Format_ARGB32_Premultiplied);
    ground.fill(tape);
    const QImage laid = laidOn(ground, ink, QPainter::CompositionMode_SourceOver);
    const QImage multiplied = laidOn(ground, picture, QPainter::CompositionMode_Multiply);
    for (int grey = 0; grey < 256; ++grey) {
      const QRgb one = laid.pixel(grey, 0);
      const QRgb other = multiplied.pixel(grey, 0);
      EXPECT_NEAR(qRed(one), qRed(other), 1) << grey;
      EXPECT_NEAR(qBlue(one), qBlue(other), 1) << grey;
    }
  }
}

TEST(InkAlone, LeavesAPictureWithAColourAsItIs) {
  for (const QRgb colour : {qRgb(0, 0, 1), qRgb(0, 1, 0), qRgb(255, 254, 255)}) {
    QImage picture(4, 6, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixel(3, 5, colour);
    EXPECT_EQ(inkAlone(picture), picture);
    EXPECT_FALSE(inkAlone(picture).hasAlphaChannel());
  }
}

}  // namespace

}  // namespace cutline
