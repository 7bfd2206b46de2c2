#include "host/dialog/StripCanvas.h"

#include <algorithm>
#include <cmath>

namespace cutline {
namespace {

double onPixel(double place, double origin, double ratio) {
  return std::round((place + origin) * ratio) / ratio - origin;
}

}  // namespace

StripCanvas::StripCanvas(QPainter& painter, bool runsAcross, QPointF offset, QPointF origin,
                         double ratio)
    : mPainter(painter), mRunsAcross(runsAcross), mOffset(offset), mOrigin(origin), mRatio(ratio) {}

double StripCanvas::hair() const noexcept { return std::max(1.0, std::floor(mRatio)) / mRatio; }

QPointF StripCanvas::point(double along, double across) const noexcept {
  return (mRunsAcross ? QPointF(along, across) : QPointF(across, along)) - mOffset;
}

QRectF StripCanvas::rect(double along, double across, double length,
                         double breadth) const noexcept {
  const auto snapped = [this](QPointF place) {
    return QPointF(onPixel(place.x(), mOrigin.x(), mRatio),
                   onPixel(place.y(), mOrigin.y(), mRatio));
  };
  return {snapped(point(along, across)), snapped(point(along + length, across + breadth))};
}

void StripCanvas::fill(double along, double across, double length, double breadth,
                       const QBrush& brush) const {
  mPainter.fillRect(rect(along, across, length, breadth), brush);
}

void StripCanvas::lineAlong(double along, double across, double length,
                            const QColor& colour) const {
  QRectF line = rect(along, across, length, 0);
  mRunsAcross ? line.setHeight(hair()) : line.setWidth(hair());
  mPainter.fillRect(line, colour);
}

void StripCanvas::lineAcross(double along, double across, double breadth,
                             const QColor& colour) const {
  QRectF line = rect(along, across, 0, breadth);
  mRunsAcross ? line.setWidth(hair()) : line.setHeight(hair());
  mPainter.fillRect(line, colour);
}

}  // namespace cutline
