#include "host/dialog/StripSigns.h"

#include <algorithm>

#include "host/dialog/BladeDrawing.h"

namespace cutline {
namespace {

constexpr double kHandle = 3;  // half its width
constexpr double kBack = 15;   // of the knife, above the tape
constexpr double kDepth = 8;   // to which a knife's tip comes into a gap
constexpr double kTouch = 1;   // and into a face
constexpr double kNotch = 2;
constexpr double kMarkLength = 7;  // length of a mark at either edge
constexpr double kMarkWidth = 2;
constexpr double kDot = 2;
constexpr double kDotPitch = 5;
constexpr double kPrinterRim = 5;  // of the printer beside the tape
constexpr double kPrinterCorner = 4;
constexpr double kMouth = 3;
constexpr int kPrinterAlpha = 120;

}  // namespace

// Its tip points to the tape.
void StripSigns::drawKnife(double along, double across, double reach, const QColor& handle) const {
  drawBlade(mCanvas.painter(), mCanvas.rect(along, across, 0, 0).topLeft(),
            {reach, mCanvas.runsAcross(), mColours.blade, mColours.bladeEdge});
  mCanvas.fill(along - kHandle, across - kBack, 2 * kHandle, kBack - kBladeHeel, handle);
}

void StripSigns::drawFullCut(double along, double across) const {
  mCanvas.lineAcross(along - mCanvas.hair() / 2, across, mBreadth + mBacking, mColours.fullCut);
  drawKnife(along, across, kDepth, mColours.fullCut);
}

void StripSigns::drawHalfCut(double along, double across) const {
  mCanvas.fill(along - kNotch / 2, across, kNotch, mBreadth, mColours.halfCut);
  drawKnife(along, across, kTouch, mColours.halfCut);
}

void StripSigns::drawCutMark(double along, double across) const {
  const double mark = std::min(kMarkLength, mBreadth / 3);
  const double start = along - kMarkWidth / 2;
  mCanvas.fill(start, across, kMarkWidth, mark, mColours.cutMark);
  mCanvas.fill(start, across + mBreadth - mark, kMarkWidth, mark, mColours.cutMark);
  for (double at = mark + kDotPitch; at < mBreadth - mark - kDot; at += kDotPitch) {
    mCanvas.fill(along - mCanvas.hair() / 2, across + at, mCanvas.hair(), kDot, mColours.cutMark);
  }
}

void StripSigns::drawBoundary(double along, double across) const {
  const double hair = mCanvas.hair();
  for (double at = kDotPitch; at < mBreadth; at += 2 * kDotPitch) {
    mCanvas.fill(along - hair / 2, across + at, hair, kDotPitch, mColours.boundary);
  }
}

void StripSigns::drawPrinter(double along, double across, double length) const {
  QColor body = mColours.printer;
  body.setAlpha(kPrinterAlpha);
  const double breadth = mBreadth + mBacking + kPrinterRim;
  QPainter& painter = mCanvas.painter();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(mColours.printerEdge, 1, Qt::DashLine));
  painter.setBrush(body);
  const double half = mCanvas.hair() / 2;
  painter.drawRoundedRect(
      mCanvas.rect(along, across - kPrinterRim, length, breadth).adjusted(half, half, -half, -half),
      kPrinterCorner, kPrinterCorner);
  painter.restore();
  mCanvas.fill(along, across - kPrinterRim, kMouth, breadth, mColours.printerEdge);
}

}  // namespace cutline
