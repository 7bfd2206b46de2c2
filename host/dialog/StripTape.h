// Draws the tape itself: its face and its backing, blank stretches, and how it ends.
#pragma once

#include "host/dialog/StripCanvas.h"
#include "host/dialog/StripColours.h"

namespace cutline {

// A stretch of tape, in the strip's pixels.
struct Stretch {
  double along;
  double across;
  double length;
  double breadth;  // of the face
  double backing;  // shows beside the face, on the far side
};

class StripTape {
 public:
  StripTape(const StripCanvas& canvas, const StripColours& colours, bool isSpecial)
      : mCanvas(canvas), mColours(colours), mIsSpecial(isSpecial) {}

  // To be printed on.
  void drawLabel(const Stretch& stretch) const;
  // Without a label on it. `isKnown`: it is as long as the tape is, or else a torn stub.
  void drawWaste(const Stretch& stretch, bool isKnown) const;
  // The end of a piece, at the stretch's beginning or behind it.
  void drawEdgeBefore(const Stretch& stretch) const;
  void drawEdgeBehind(const Stretch& stretch) const;
  // The tape goes on in the lane before, or in the next one: fades out.
  void drawGoingOn(const Stretch& stretch, bool isBefore) const;
  // The tape goes on into the printer, uncut.
  void drawHangingOut(const Stretch& stretch) const;

 private:
  void drawBody(const Stretch& stretch, const QColor& face) const;
  void drawFabric(const Stretch& stretch) const;
  void drawHatching(const QRectF& area) const;
  void drawTear(const Stretch& stretch) const;
  void drawQuestion(double along, double across) const;

  const StripCanvas& mCanvas;
  const StripColours& mColours;
  bool mIsSpecial;
};

}  // namespace cutline
