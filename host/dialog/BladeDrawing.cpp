#include "host/dialog/BladeDrawing.h"

#include <QPolygonF>
#include <QRect>
#include <array>
#include <cmath>

#include "host/dialog/DrawnOnce.h"

namespace cutline {
namespace {

constexpr double kHalfWidth = 2;
constexpr double kSlope = 5;  // of the edge that comes to the tip
constexpr double kLine = 0.8;
constexpr double kAround = 1;  // what the line takes beyond the blade

QPolygonF outline(const BladeLook& look) {
  constexpr double kHeel = -kBladeHeel;
  const std::array corners = std::to_array<QPointF>({{-kHalfWidth, look.reach},
                                                     {kHalfWidth, look.reach - kSlope},
                                                     {kHalfWidth, kHeel},
                                                     {-kHalfWidth, kHeel}});
  QPolygonF polygon;
  for (const QPointF& corner : corners)
    polygon.append(look.runsAcross ? corner : corner.transposed());
  return polygon;
}

void drawSmoothly(QPainter& painter, const QPolygonF& polygon, const BladeLook& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look.edge, kLine));
  painter.setBrush(look.fill);
  painter.drawPolygon(polygon);
  painter.restore();
}

// The whole points that a blade lies in.
QRect roomOf(const QPolygonF& polygon) {
  return polygon.boundingRect().adjusted(-kAround, -kAround, kAround, kAround).toAlignedRect();
}

}  // namespace

void drawBlade(QPainter& painter, QPointF at, const BladeLook& look) {
  static DrawnOnce<BladeLook> blades;
  const QPolygonF polygon = outline(look);
  const QRect room = roomOf(polygon);
  const QRectF place = QRectF(room).translated(at);
  const int ratio = wholeRatio(painter, place);
  if (ratio == 0) return drawSmoothly(painter, polygon.translated(at), look);
  const QImage& picture =
      blades.picture(look, ratio, room, [&](QPainter& once) { drawSmoothly(once, polygon, look); });
  painter.drawImage(place, picture);
}

}  // namespace cutline
