#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "host/dialog/BladeDrawing.h"
#include "tests/dialog/PictureDifference.h"

namespace cutline {
namespace {

using test::largestDifference;

const QColor kSteel(211, 216, 221);
const QColor kLine(75, 85, 97);

QImage canvas(double ratio) {
  QImage picture(QSize(40, 40) * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(QColor(238, 240, 243));
  return picture;
}

QImage drawn(double ratio, QPointF at, const BladeLook& look) {
  QImage picture = canvas(ratio);
  QPainter painter(&picture);
  drawBlade(painter, at, look);
  return picture;
}

// A blade of this reach as a path, with its tip towards the tape.
QImage drawnAsPath(double ratio, QPointF at, const BladeLook& look) {
  QImage picture = canvas(ratio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look.edge, 0.8));
  painter.setBrush(look.fill);
  QPolygonF blade{{-2, look.reach}, {2, look.reach - 5}, {2, -4}, {-2, -4}};
  if (!look.runsAcross)
    for (QPointF& corner : blade) corner = corner.transposed();
  painter.drawPolygon(blade.translated(at));
  return picture;
}

// Smooth pixels are mixed twice where they are copied, so the last bits may be others.
TEST(BladeDrawing, IsThePathPixelByPixel) {
  for (const double ratio : {1.0, 1.25, 2.0, 3.0})
    for (const QPointF at : {QPointF(12, 16), QPointF(12.3, 16.6), QPointF(20, 20)})
      for (const double reach : {1.0, 8.0})
        for (const bool runsAcross : {true, false}) {
          const BladeLook look{reach, runsAcross, kSteel, kLine};
          const QImage path = drawnAsPath(ratio, at, look);
          EXPECT_LE(largestDifference(drawn(ratio, at, look), path), 2) << ratio << ' ' << reach;
          EXPECT_GT(largestDifference(canvas(ratio), path), 40);
        }
}

TEST(BladeDrawing, LooksAreToldApart) {
  const QPointF at(12, 16);
  for (int round = 0; round < 2; ++round)
    for (int i = 0; i < 40; ++i) {
      const BladeLook look{1.0 + i % 3, i % 2 == 0, QColor(2 * i, 200 - i, i), QColor(i, 0, 90)};
      for (const double ratio : {1.0, 2.0})
        EXPECT_LE(largestDifference(drawn(ratio, at, look), drawnAsPath(ratio, at, look)), 2) << i;
    }
}

// Whoever paints with the same painter next finds it as it was.
TEST(BladeDrawing, LeavesThePainterAsItWas) {
  QImage picture = canvas(1);
  QPainter painter(&picture);
  painter.setPen(Qt::red);
  for (const QPointF at : {QPointF(12, 16), QPointF(12.3, 16.6)}) {
    drawBlade(painter, at, {8, true, kSteel, kLine});
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
  }
}

}  // namespace
}  // namespace cutline
