// A picture shows what its name says: how many pieces there are, what holds them together, and
// which way the text runs.
#include "tests/pictures/Meaning.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>
#include <QSvgRenderer>
#include <string>
#include <vector>

#include "bundle/resources/pictures/Flags.h"
#include "bundle/resources/pictures/Names.h"
#include "bundle/resources/pictures/Palette.h"
#include "bundle/resources/pictures/Printer.h"
#include "tests/pictures/PictureFiles.h"

namespace cutline::pictures {
namespace {

constexpr int kBackingRow = 61;      // through the backing of a tape
constexpr int kFaceRow = 33;         // through its face, above the text, below the knives' points
constexpr int kTickRow = 31;         // through the upper ticks of printed marks, above the text
constexpr int kTextRow = 42;         // through the text of tape and paper
constexpr int kScissorsRow = 66;     // below a tape, where the scissors' blades cross
constexpr int kPaperRow = 70;        // through the paper of a roll
constexpr int kPrinterColumn = 206;  // the printer's slot begins behind it

constexpr int kVisibleGap = 3;     // in points: what still shows in a list, half as large
constexpr double kBearings = 1.5;  // letters don't fill their space evenly on both sides

// How many runs of at least `length` pixels that `matches` holds for lie in a row, between the
// start of the tape and the printer.
template <typename Matches>
int runsIn(const QImage& image, int row, int length, Matches matches) {
  int runs = 0;
  int run = 0;
  bool started = false;
  for (int x = 0; x < kPrinterColumn; ++x) {
    const QColor colour = image.pixelColor(x, row);
    started = started || colour.alpha() > 0;
    run = started && matches(colour) ? run + 1 : 0;
    runs += run == length ? 1 : 0;
  }
  return runs;
}

int gapsIn(const QImage& image, int row) {
  return runsIn(image, row, kVisibleGap, [](const QColor& c) { return c.alpha() == 0; });
}

int runsIn(const QImage& image, int row, int length, Colour colour) {
  const QColor wanted(QString::fromUtf8(colour.data(), static_cast<qsizetype>(colour.size())));
  return runsIn(image, row, length, [&](const QColor& c) { return c == wanted; });
}

void expectCuts(const std::string& name, int row, const Meaning& expected) {
  const QImage image = imageOf(name, 1);
  ASSERT_FALSE(image.isNull()) << name;
  EXPECT_EQ(gapsIn(image, row), expected.fullCuts) << name;
  EXPECT_EQ(gapsIn(image, kTextRow), expected.fullCuts) << name;
  EXPECT_EQ(runsIn(image, kFaceRow, kVisibleGap, kBacking), expected.halfCuts) << name;
  EXPECT_EQ(runsIn(image, kScissorsRow, 1, kHand), expected.scissors) << name;
}

std::vector<std::string> plainNamesWithMirrored() {
  std::vector<std::string> names;
  for (const std::string_view name : kPictureNames) {
    if (!mirroredNameOf(name).empty()) names.emplace_back(name);
  }
  return names;
}

// One text of a picture alone, four pixels a point.
QImage textOf(const QSvgRenderer& renderer, const QString& id) {
  const QRectF bounds = renderer.boundsOnElement(id);
  QImage image((bounds.size() * 4).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  const_cast<QSvgRenderer&>(renderer).render(&painter, id, QRectF(image.rect()));
  return image;
}

TEST(PictureMeaning, ATapeIsPartedWhereItsNameSaysAndNowhereElse) {
  for (const Meaning& row : kTapeRows) {
    expectCuts(std::string(row.stem) + "Off", kBackingRow, row);
    expectCuts(std::string(row.stem) + "On", kBackingRow, row);
  }
}

TEST(PictureMeaning, ATapeForCuttingByHandIsWholeAndShowsWhereToCut) {
  for (const Meaning& row : kMarkedRows)
    expectCuts(std::string(row.stem) + "Off", kBackingRow, row);
}

TEST(PictureMeaning, CutMarksArePrintedAtTheEndsOfLabelsWhenAskedFor) {
  for (const std::string_view name : kPictureNames) {
    const Flags flags = flagsOf(name);
    const int marks = flags.chain ? 3 : 4;
    EXPECT_EQ(runsIn(imageOf(name, 1), kTickRow, 2, kInk), flags.cutMark ? marks : 0) << name;
  }
}

TEST(PictureMeaning, ARollIsPartedAfterEachLabelOrOnceOrNever) {
  for (const Meaning& row : kRollRows) {
    expectCuts(std::string(row.stem) + "Off", kPaperRow, row);
    expectCuts(std::string(row.stem) + "On", kPaperRow, row);
  }
}

TEST(PictureMeaning, OnlyAChainKeepsALabelInThePrinter) {
  for (const std::string_view name : kPictureNames) {
    const QSvgRenderer renderer(pathOf(name));
    const bool chain = flagsOf(name).chain;
    EXPECT_EQ(renderer.elementExists("text4"), chain) << name;
    EXPECT_LT(renderer.boundsOnElement("text3").right(), kPrinterColumn) << name;
    if (!chain) continue;
    EXPECT_LT(renderer.boundsOnElement("text4").left(), kPrinterColumn) << name;
    EXPECT_GT(renderer.boundsOnElement("text4").right(), kMouth) << name;
  }
}

TEST(PictureMeaning, EveryPictureButTheMarkedOnesHasAMirroredTwin) {
  EXPECT_EQ(plainNamesWithMirrored().size(), 12U);
}

TEST(PictureMeaning, MirroredTextIsTheMirrorImageOfThePlainTextInTheSamePlace) {
  for (const std::string& name : plainNamesWithMirrored()) {
    const QSvgRenderer plain(pathOf(name));
    const QSvgRenderer mirrored(pathOf(mirroredNameOf(name)));
    for (const QString id : {"text1", "text2", "text3"}) {
      ASSERT_TRUE(plain.elementExists(id) && mirrored.elementExists(id)) << name;
      const QPointF drift =
          plain.boundsOnElement(id).center() - mirrored.boundsOnElement(id).center();
      EXPECT_LT(drift.manhattanLength(), kBearings) << name;
      const QImage straight = textOf(plain, id);
      const QImage turned = textOf(mirrored, id);
      ASSERT_EQ(straight.size(), turned.size()) << name;
      EXPECT_LT(differenceOf(straight.mirrored(true, false), turned), 0.02) << name;
      EXPECT_GT(differenceOf(straight, turned), 0.1) << name;
    }
  }
}

}  // namespace
}  // namespace cutline::pictures
