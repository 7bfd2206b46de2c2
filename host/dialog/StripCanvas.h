// Paints along and across a strip, with edges on the pixels of the screen at every scale of it.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QRectF>

namespace cutline {

class StripCanvas {
 public:
  // `runsAcross`: the strip's way is from left to right, or else downwards. `offset`: what is at
  // the view's corner. `origin`: where that corner is in its window, in points.
  StripCanvas(QPainter& painter, bool runsAcross, QPointF offset, QPointF origin, double ratio);

  QPainter& painter() const noexcept { return mPainter; }
  bool runsAcross() const noexcept { return mRunsAcross; }
  // As wide as a line is at least: about a point, in whole pixels.
  double hair() const noexcept;

  QPointF point(double along, double across) const noexcept;
  // Each edge on the nearest pixel's.
  QRectF rect(double along, double across, double length, double breadth) const noexcept;

  void fill(double along, double across, double length, double breadth, const QBrush& brush) const;
  // Lines as wide as a hair, from a place on.
  void lineAlong(double along, double across, double length, const QColor& colour) const;
  void lineAcross(double along, double across, double breadth, const QColor& colour) const;

 private:
  QPainter& mPainter;
  bool mRunsAcross;
  QPointF mOffset;
  QPointF mOrigin;
  double mRatio;
};

}  // namespace cutline
