#include "host/dialog/BoxDrawing.h"

#include <QImage>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace cutline {
namespace {

constexpr std::size_t kMostLooks = 64;

void drawSmoothly(QPainter& painter, const QRectF& rect, const BoxLook& look) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.edge);
  painter.setBrush(look.fill);
  // The line lies on whole pixels.
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), look.radius, look.radius);
}

// From the edges to where a box has no more than its line and its fill, in points.
int cornerSide(const BoxLook& look) { return static_cast<int>(std::ceil(look.radius)) + 1; }

// The least box with all of a look: four corners and a point between them.
struct LeastBox {
  QRgb fill;
  QRgb edge;
  double radius;
  int ratio;
  QImage picture;

  bool isOf(const BoxLook& look, int pixels) const {
    return fill == look.fill.rgba() && edge == look.edge.rgba() && radius == look.radius &&
           ratio == pixels;
  }
};

QImage pictureOf(const BoxLook& look, int ratio) {
  const int side = 2 * cornerSide(look) + 1;
  QImage picture(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.scale(ratio, ratio);
  drawSmoothly(painter, QRectF(0, 0, side, side), look);
  return picture;
}

const QImage& leastBox(const BoxLook& look, int ratio) {
  static std::vector<LeastBox> boxes;
  const auto known =
      std::ranges::find_if(boxes, [&](const LeastBox& box) { return box.isOf(look, ratio); });
  if (known != boxes.end()) return known->picture;
  if (boxes.size() == kMostLooks) boxes.clear();  // another theme's, by now
  boxes.push_back({look.fill.rgba(), look.edge.rgba(), look.radius, ratio, pictureOf(look, ratio)});
  return boxes.back().picture;
}

bool isWhole(double pixels) { return std::abs(pixels - std::round(pixels)) < 1e-6; }

// Pixels of the screen to a point, where the box lies on whole ones; 0 elsewhere.
int wholeRatio(const QPainter& painter, const QRectF& rect) {
  const QTransform device = painter.deviceTransform();
  if (device.type() > QTransform::TxScale || device.m11() != device.m22()) return 0;
  const double ratio = device.m11();
  const QRectF pixels = device.mapRect(rect);
  const bool lies = isWhole(pixels.left()) && isWhole(pixels.top()) && isWhole(pixels.width()) &&
                    isWhole(pixels.height());
  return lies && isWhole(ratio) ? static_cast<int>(std::round(ratio)) : 0;
}

// Puts a box together from the least one of its look.
class BoxParts {
 public:
  BoxParts(QPainter& painter, const QRectF& rect, int side, int ratio, const QImage& least)
      : mPainter(painter), mRect(rect), mSide(side), mRatio(ratio), mLeast(least) {}

  void drawCorners() const {
    const double last = mLeast.width() - mSide * mRatio;
    for (const bool isRight : {false, true}) {
      for (const bool isLow : {false, true}) {
        const QPointF at(isRight ? mRect.right() - mSide : mRect.left(),
                         isLow ? mRect.bottom() - mSide : mRect.top());
        const QPointF from(isRight ? last : 0, isLow ? last : 0);
        const QSizeF corner(mSide, mSide);
        mPainter.drawImage(QRectF(at, corner), mLeast, QRectF(from, corner * mRatio));
      }
    }
  }

  // Row by row of the screen's pixels, as far as the rows differ.
  void drawSides() const {
    const double pixel = 1.0 / mRatio;
    for (int row = 0; row < mRatio; ++row) {
      const QColor colour = rowColour(row);
      const double in = row * pixel;
      const QRectF wide(mRect.left() + mSide, mRect.top() + in, mRect.width() - 2 * mSide, pixel);
      const QRectF high(mRect.left() + in, mRect.top() + mSide, pixel, mRect.height() - 2 * mSide);
      mPainter.fillRect(wide, colour);
      mPainter.fillRect(wide.translated(0, mRect.height() - 2 * in - pixel), colour);
      mPainter.fillRect(high, colour);
      mPainter.fillRect(high.translated(mRect.width() - 2 * in - pixel, 0), colour);
    }
  }

  void drawMiddle() const {
    const QColor colour = rowColour(mLeast.height() / 2);
    const double corner = mSide - 1.0;
    const QRectF high = mRect.adjusted(mSide, 1, -mSide, -1);
    mPainter.fillRect(high, colour);
    const QRectF left(mRect.left() + 1, mRect.top() + mSide, corner, mRect.height() - 2 * mSide);
    mPainter.fillRect(left, colour);
    mPainter.fillRect(left.translated(mRect.width() - mSide - 1, 0), colour);
  }

 private:
  QColor rowColour(int row) const { return mLeast.pixelColor(mLeast.width() / 2, row); }

  QPainter& mPainter;
  QRectF mRect;
  int mSide;
  int mRatio;
  const QImage& mLeast;
};

}  // namespace

void drawBox(QPainter& painter, const QRectF& rect, const BoxLook& look) {
  const int side = cornerSide(look);
  const int ratio = wholeRatio(painter, rect);
  const bool hasRoom = rect.width() >= 2 * side && rect.height() >= 2 * side;
  if (ratio == 0 || !hasRoom) return drawSmoothly(painter, rect, look);
  painter.setRenderHint(QPainter::Antialiasing, false);
  const BoxParts parts(painter, rect, side, ratio, leastBox(look, ratio));
  parts.drawCorners();
  parts.drawSides();
  parts.drawMiddle();
}

}  // namespace cutline
