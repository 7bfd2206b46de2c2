// Draws a ruler beside a stretch of tape: ticks each centimetre, numbers where they have room.
#pragma once

#include <QFont>
#include <cstdint>

#include "host/dialog/StripCanvas.h"
#include "host/dialog/StripColours.h"
#include "host/dialog/StripTexts.h"

namespace cutline {

class StripRuler {
 public:
  // `scale`: pixels a millimetre. `extent`: its room across the strip. `numbers` have its font.
  StripRuler(const StripCanvas& canvas, const StripColours& colours, StripTexts& numbers,
             double scale, double extent);

  // How much room it takes across the strip, beside texts in this font.
  static double extent(const QFont& font, bool runsAcross);
  // The font of its numbers there.
  static QFont fontFor(const QFont& font);

  // From the millimetre `from` to `to`; the first lies at `along`. Only what lies between the
  // places `seenFrom` and `seenTo` is looked at.
  void draw(double along, double across, double from, double to, double seenFrom, double seenTo);

 private:
  void drawNumber(double along, double across, std::int64_t number);
  int stepOfNumbers() const;

  const StripCanvas& mCanvas;
  const StripColours& mColours;
  StripTexts& mNumbers;
  double mHeight;  // of a number
  double mScale;
  double mExtent;
  int mStep;  // millimetres from number to number
};

}  // namespace cutline
