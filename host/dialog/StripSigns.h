// Draws what is done to the tape: knives, notches, marks, and the printer that a label stays in.
// Each stands at a place along the strip, beside or on a tape whose near edge is at `across`.
#pragma once

#include "host/dialog/StripCanvas.h"
#include "host/dialog/StripColours.h"

namespace cutline {

class StripSigns {
 public:
  // `breadth`, `backing`: of the tape's face, and of what shows of its backing.
  StripSigns(const StripCanvas& canvas, const StripColours& colours, double breadth, double backing)
      : mCanvas(canvas), mColours(colours), mBreadth(breadth), mBacking(backing) {}

  // In the middle of the gap that it has made.
  void drawFullCut(double along, double across) const;
  // Through the face, down to the backing.
  void drawHalfCut(double along, double across) const;
  void drawCutMark(double along, double across) const;
  // Between two labels that nothing parts.
  void drawBoundary(double along, double across) const;
  // Over a label that has not left it, and the tape behind that.
  void drawPrinter(double along, double across, double length) const;

 private:
  void drawKnife(double along, double across, double reach, const QColor& handle) const;

  const StripCanvas& mCanvas;
  const StripColours& mColours;
  double mBreadth;
  double mBacking;
};

}  // namespace cutline
