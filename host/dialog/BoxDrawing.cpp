#include "host/dialog/BoxDrawing.h"

#include <QImage>
#include <cmath>

#include "host/dialog/DrawnOnce.h"

namespace cutline {
namespace {

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
const QImage& leastBox(const BoxLook& look, int ratio) {
  static DrawnOnce<BoxLook> boxes;
  const int side = 2 * cornerSide(look) + 1;
  const QRect room(0, 0, side, side);
  return boxes.picture(look, ratio, room,
                       [&](QPainter& painter) { drawSmoothly(painter, room, look); });
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
