#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <array>

#include "host/dialog/BoxDrawing.h"
#include "tests/dialog/PictureDifference.h"

namespace cutline {
namespace {

using test::largestDifference;

const QColor kGround(238, 240, 243);
const QColor kFill(255, 255, 255);
const QColor kEdge(150, 155, 160);

// A box with its path drawn as a whole.
void drawPath(QPainter& painter, const QRectF& rect, const BoxLook& look) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.edge);
  painter.setBrush(look.fill);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), look.radius, look.radius);
}

using Drawing = void (*)(QPainter&, const QRectF&, const BoxLook&);

QImage drawn(Drawing drawing, double ratio, const QRectF& rect, const BoxLook& look) {
  QImage picture(QSize(120, 60) * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(kGround);
  QPainter painter(&picture);
  painter.translate(3, 2);
  drawing(painter, rect, look);
  return picture;
}

struct BoxCase {
  const char* name;
  double ratio;
  QRectF rect;
  BoxLook look;
};

void PrintTo(const BoxCase& box, std::ostream* out) { *out << box.name; }

class BoxDrawingTest : public testing::TestWithParam<BoxCase> {};

// Smooth pixels are mixed twice where a corner is copied, so the last bit may be another.
TEST_P(BoxDrawingTest, IsThePathPixelByPixel) {
  const BoxCase& box = GetParam();
  const QImage parts = drawn(drawBox, box.ratio, box.rect, box.look);
  const QImage path = drawn(drawPath, box.ratio, box.rect, box.look);
  EXPECT_LE(largestDifference(parts, path), 2);
  EXPECT_GT(largestDifference(parts, drawn([](auto&...) {}, box.ratio, {}, {})), 40);
}

const std::array kBoxes = std::to_array<BoxCase>({
    {"Button", 1, QRectF(10, 8, 80, 28), {4, kFill, kEdge}},
    {"ButtonTwice", 2, QRectF(10, 8, 80, 28), {4, kFill, kEdge}},
    {"ButtonThrice", 3, QRectF(10, 8, 80, 28), {4, kFill, kEdge}},
    {"OnHalfPoints", 2, QRectF(10.5, 8.5, 80, 28), {4, kFill, kEdge}},
    {"BetweenPixels", 1, QRectF(10.3, 8.4, 80, 28), {4, kFill, kEdge}},
    {"AtAScaleBetween", 1.25, QRectF(10, 8, 80, 28), {4, kFill, kEdge}},
    {"AtOneAndAHalf", 1.5, QRectF(10, 8, 80, 28), {4, kFill, kEdge}},
    {"CheckMark", 1, QRectF(10, 8, 14, 14), {3, kFill, kEdge}},
    {"Least", 1, QRectF(10, 8, 10, 10), {4, kFill, kEdge}},
    {"Smaller", 1, QRectF(10, 8, 7, 9), {4, kFill, kEdge}},
    {"WithoutEdge", 1, QRectF(10, 8, 80, 28), {4, kEdge, Qt::transparent}},
    {"WithoutEdgeTwice", 2, QRectF(10, 8, 80, 28), {4, kEdge, Qt::transparent}},
    {"WithoutFill", 1, QRectF(10, 8, 80, 28), {4, Qt::transparent, kEdge}},
    {"SeenThrough", 2, QRectF(10, 8, 80, 28), {6, QColor(0, 0, 0, 90), QColor(200, 0, 0, 120)}},
});

INSTANTIATE_TEST_SUITE_P(Boxes, BoxDrawingTest, testing::ValuesIn(kBoxes),
                         [](const auto& info) { return std::string(info.param.name); });

// Looks are told apart by each of their parts, and drawn again after many others.
TEST(BoxLooksTest, AreToldApart) {
  const QRectF rect(10, 8, 80, 28);
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 100; ++i) {
      const BoxLook look{3.0 + i % 2, QColor(2 * i, 255 - i, i), QColor(255 - 2 * i, i, 90)};
      for (const double ratio : {1.0, 2.0})
        EXPECT_LE(largestDifference(drawn(drawBox, ratio, rect, look),
                                    drawn(drawPath, ratio, rect, look)),
                  2)
            << i;
    }
  }
}

}  // namespace
}  // namespace cutline
