// The blades of the knives beside a strip.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

namespace cutline {

struct BladeLook {
  double reach = 0;        // of its tip into the tape, points
  bool runsAcross = true;  // the strip's way is from left to right, or else downwards
  QColor fill;
  QColor edge;
  friend bool operator==(const BladeLook&, const BladeLook&) = default;
};

// How far a blade comes down from its handle to the tape; points.
inline constexpr double kBladeHeel = 4;

// `at` is on the tape's near edge. On whole pixels of the screen the blade is drawn once and
// copied.
void drawBlade(QPainter& painter, QPointF at, const BladeLook& look);

}  // namespace cutline
