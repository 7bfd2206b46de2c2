#include "host/dialog/StripTape.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace cutline {
namespace {

constexpr double kShadow = 2;
constexpr double kHatchPitch = 6;
constexpr double kWeavePitch = 5;
constexpr double kSelvage = 4;  // from the fabric's edge to its stitches
constexpr double kTear = 7;     // width of a tear
constexpr double kTooth = 5;
constexpr double kWave = 4;
constexpr double kSignSize = 17;
constexpr int kSignFont = 12;  // pixels

// Lines from lower left to upper right; those beyond what is painted are left out.
void drawDiagonals(QPainter& painter, const QRectF& area, double pitch, const QColor& colour) {
  const QRectF seen = area.intersected(painter.viewport());
  if (seen.isEmpty()) return;
  painter.save();
  painter.setClipRect(seen, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1));
  const double sum = area.left() + area.bottom();
  const double first = std::floor((seen.left() + seen.top() - sum) / pitch) * pitch + sum;
  for (double at = first; at < seen.right() + seen.bottom(); at += pitch) {
    painter.drawLine(QPointF(at - seen.bottom(), seen.bottom()),
                     QPointF(at - seen.top(), seen.top()));
  }
  painter.restore();
}

QColor clear(QColor colour) {
  colour.setAlpha(0);
  return colour;
}

}  // namespace

void StripTape::drawBody(const Stretch& stretch, const QColor& face) const {
  const auto [along, across, length, breadth, backing] = stretch;
  mCanvas.fill(along, across + breadth + backing, length, kShadow, mColours.shadow);
  if (mIsSpecial) return drawFabric(stretch);
  mCanvas.fill(along, across, length, breadth, face);
  mCanvas.fill(along, across + breadth, length, backing, mColours.backing);
  mCanvas.lineAlong(along, across, length, mColours.edge);
  mCanvas.lineAlong(along, across + breadth, length, mColours.edge);
  mCanvas.lineAlong(along, across + breadth + backing, length, mColours.edge);
}

void StripTape::drawFabric(const Stretch& stretch) const {
  const double breadth = stretch.breadth + stretch.backing;
  const QRectF area = mCanvas.rect(stretch.along, stretch.across, stretch.length, breadth);
  mCanvas.painter().fillRect(area, mColours.fabric);
  drawDiagonals(mCanvas.painter(), area, kWeavePitch, mColours.weave);
  mCanvas.lineAlong(stretch.along, stretch.across, stretch.length, mColours.stitch);
  mCanvas.lineAlong(stretch.along, stretch.across + breadth, stretch.length, mColours.stitch);
  QPen stitches(mColours.stitch, mCanvas.hair(), Qt::CustomDashLine, Qt::FlatCap);
  stitches.setDashPattern({5, 3});
  QPainter& painter = mCanvas.painter();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(stitches);
  for (const double from : {kSelvage, breadth - kSelvage}) {
    painter.drawLine(mCanvas.point(stretch.along, stretch.across + from),
                     mCanvas.point(stretch.along + stretch.length, stretch.across + from));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void StripTape::drawLabel(const Stretch& stretch) const { drawBody(stretch, mColours.face); }

void StripTape::drawHatching(const QRectF& area) const {
  drawDiagonals(mCanvas.painter(), area, kHatchPitch, mColours.hatching);
}

void StripTape::drawWaste(const Stretch& stretch, bool isKnown) const {
  drawBody(stretch, mColours.waste);
  const double hair = mCanvas.hair();
  drawHatching(
      mCanvas.rect(stretch.along, stretch.across + hair, stretch.length, stretch.breadth - hair));
  if (!isKnown) drawTear(stretch);
}

// Through the middle of the stretch, from edge to edge: a piece of any length is missing there.
void StripTape::drawTear(const Stretch& stretch) const {
  const double breadth = stretch.breadth + stretch.backing + kShadow;
  const double middle = stretch.along + stretch.length / 2;
  const int teeth = std::max(2, static_cast<int>(breadth / kTooth));
  QPolygonF left;
  QPolygonF right;
  for (int tooth = 0; tooth <= teeth; ++tooth) {
    const double across = stretch.across - 1 + (breadth + 2) * tooth / teeth;
    const double out = tooth % 2 == 0 ? kTooth / 2 : -kTooth / 2;
    left.append(mCanvas.point(middle - kTear / 2 + out, across));
    right.prepend(mCanvas.point(middle + kTear / 2 + out, across));
  }
  QPainter& painter = mCanvas.painter();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(mColours.desk);
  painter.drawPolygon(left + right);
  painter.setPen(QPen(mColours.edge, 1));
  painter.drawPolyline(left);
  painter.drawPolyline(right);
  painter.restore();
  drawQuestion(middle, stretch.across + stretch.breadth / 2);
}

void StripTape::drawQuestion(double along, double across) const {
  const QRectF place =
      mCanvas.rect(along - kSignSize / 2, across - kSignSize / 2, kSignSize, kSignSize);
  QPainter& painter = mCanvas.painter();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(mColours.edge, 1));
  painter.setBrush(mColours.face);
  painter.drawEllipse(place);
  QFont font = painter.font();
  font.setPixelSize(kSignFont);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(mColours.wasteText);
  painter.drawText(place, Qt::AlignCenter, QStringLiteral("?"));
  painter.restore();
}

void StripTape::drawEdgeBefore(const Stretch& stretch) const {
  mCanvas.lineAcross(stretch.along, stretch.across, stretch.breadth + stretch.backing,
                     mIsSpecial ? mColours.stitch : mColours.edge);
}

void StripTape::drawEdgeBehind(const Stretch& stretch) const {
  drawEdgeBefore({stretch.along + stretch.length - mCanvas.hair(), stretch.across, stretch.length,
                  stretch.breadth, stretch.backing});
}

void StripTape::drawGoingOn(const Stretch& stretch, bool isBefore) const {
  drawLabel(stretch);
  const QRectF area = mCanvas.rect(stretch.along, stretch.across - 1, stretch.length,
                                   stretch.breadth + stretch.backing + kShadow + 2);
  const QPointF start = area.topLeft();
  const QPointF end = mCanvas.runsAcross() ? area.topRight() : area.bottomLeft();
  QLinearGradient fade(isBefore ? end : start, isBefore ? start : end);
  fade.setColorAt(0, clear(mColours.desk));
  fade.setColorAt(1, mColours.desk);
  mCanvas.painter().fillRect(area, fade);
}

void StripTape::drawHangingOut(const Stretch& stretch) const {
  const double breadth = stretch.breadth + stretch.backing + kShadow;
  const double end = stretch.along + stretch.length - kWave;
  drawLabel(stretch);
  QPainterPath beyond(mCanvas.point(end, stretch.across - 1));
  const double step = (breadth + 2) / 4;
  for (int wave = 0; wave < 4; ++wave) {
    const double across = stretch.across - 1 + wave * step;
    const double out = wave % 2 == 0 ? 2 * kWave : -2 * kWave;
    beyond.quadTo(mCanvas.point(end + out / 2, across + step / 2),
                  mCanvas.point(end, across + step));
  }
  QPainter& painter = mCanvas.painter();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath outline = beyond;
  beyond.lineTo(mCanvas.point(end + 3 * kWave, stretch.across + breadth + 1));
  beyond.lineTo(mCanvas.point(end + 3 * kWave, stretch.across - 1));
  beyond.closeSubpath();
  painter.fillPath(beyond, mColours.desk);
  painter.setClipRect(mCanvas.rect(stretch.along, stretch.across, stretch.length + 3 * kWave,
                                   stretch.breadth + stretch.backing));
  painter.strokePath(outline, QPen(mColours.edge, 1));
  painter.restore();
}

}  // namespace cutline
