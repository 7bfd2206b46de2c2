// Boxes with round corners, which most controls are drawn on.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace cutline {

struct BoxLook {
  double radius = 0;  // points
  QColor fill;
  QColor edge;  // of the line, a point wide, on the inside of the box's rectangle
  friend bool operator==(const BoxLook&, const BoxLook&) = default;
};

// Leaves the painter's pen, brush and hints changed. On whole pixels of the screen the corners are
// drawn once and copied from then on: smooth edges take most of what painting a control takes.
void drawBox(QPainter& painter, const QRectF& rect, const BoxLook& look);

}  // namespace cutline
