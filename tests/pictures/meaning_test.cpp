// A picture shows what its name says: how many pieces there are, what holds them together, and
// which way the text runs.
#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>
#include <QSvgRenderer>
#include <string>
#include <vector>

#include "bundle/resources/pictures/Names.h"
#include "bundle/resources/pictures/Palette.h"
#include "tests/pictures/PictureFiles.h"

namespace cutline::pictures {
namespace {

constexpr int kBackingRow = 61;      // through the backing of a tape
constexpr int kFaceRow = 33;         // through its face, above the text, below the knives' points
constexpr int kPaperRow = 70;        // through the paper of a roll
constexpr int kPrinterColumn = 206;  // the printer's slot begins behind it

constexpr double kBearings = 1.5;  // letters don't fill their space evenly on both sides

struct Row {
  const char* stem;  // the name without the mirror flag
  int fullCuts;      // gaps that part the whole tape
  int halfCuts;      // gaps in the face only
};

constexpr Row kTapeRows[] = {
    {"AHCMOffOffOff", 0, 0}, {"AHCMOffOffOn", 0, 0}, {"AHCMOffOnOff", 0, 4},
    {"AHCMOffOnOn", 0, 3},   {"AHCMOnOffOff", 4, 0}, {"AHCMOnOffOn", 3, 0},
    {"AHCMOnOnOff", 1, 3},   {"AHCMOnOnOn", 1, 2},   {"SPMROn", 0, 0},
};
constexpr Row kMarkedRows[] = {
    {"CTMROnOff", 0, 0}, {"CTMROffOff", 0, 0}, {"CTMROnOn", 0, 0}, {"CTMROffOn", 0, 0}};
constexpr Row kRollRows[] = {
    {"EveryEndMirrorOffOff", 0, 0}, {"EveryEndMirrorOffOn", 1, 0}, {"EveryEndMirrorOnOff", 3, 0}};

// How often a run of pixels for which `matches` holds begins in a row, right of the tape's start.
template <typename Matches>
int runsIn(const QImage& image, int row, Matches matches) {
  int runs = 0;
  bool started = false;
  bool inside = false;
  for (int x = 0; x < kPrinterColumn; ++x) {
    const QColor colour = image.pixelColor(x, row);
    started = started || colour.alpha() > 0;
    const bool match = started && matches(colour);
    runs += match && !inside ? 1 : 0;
    inside = match;
  }
  return runs;
}

int gapsIn(const QImage& image, int row) {
  return runsIn(image, row, [](const QColor& colour) { return colour.alpha() == 0; });
}

int bareBackingsIn(const QImage& image, int row) {
  const QColor backing(QString::fromUtf8(kBacking.data(), static_cast<qsizetype>(kBacking.size())));
  return runsIn(image, row, [&](const QColor& colour) { return colour == backing; });
}

int gapsInFace(const QImage& image) {
  return runsIn(image, kFaceRow + 12, [](const QColor& colour) { return colour.alpha() == 0; });
}

void expectCuts(const std::string& name, int row, const Row& expected) {
  const QImage image = imageOf(name, 1);
  ASSERT_FALSE(image.isNull()) << name;
  EXPECT_EQ(gapsIn(image, row), expected.fullCuts) << name;
  EXPECT_EQ(gapsInFace(image), expected.fullCuts) << name;
  EXPECT_EQ(bareBackingsIn(image, kFaceRow), expected.halfCuts) << name;
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
  for (const Row& row : kTapeRows) {
    expectCuts(std::string(row.stem) + "Off", kBackingRow, row);
    expectCuts(std::string(row.stem) + "On", kBackingRow, row);
  }
}

TEST(PictureMeaning, ATapeForCuttingByHandIsWhole) {
  for (const Row& row : kMarkedRows) expectCuts(std::string(row.stem) + "Off", kBackingRow, row);
}

TEST(PictureMeaning, ARollIsPartedAfterEachLabelOrOnceOrNever) {
  for (const Row& row : kRollRows) {
    expectCuts(std::string(row.stem) + "Off", kPaperRow, row);
    expectCuts(std::string(row.stem) + "On", kPaperRow, row);
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
