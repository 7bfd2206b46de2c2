// Draws a ruler beside a stretch of tape: ticks each centimetre, numbers where they have room.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <cstdint>

#include "host/dialog/StripCanvas.h"
#include "host/dialog/StripColours.h"

namespace cutline {

class StripRuler {
 public:
  // `scale`: pixels a millimetre. The painter has the font of the numbers.
  StripRuler(const StripCanvas& canvas, const StripColours& colours, double scale);

  // How much room it takes across the strip, with this font.
  static double extent(const QFont& font, bool runsAcross);
  static QFont fontFor(const QFont& font);

  // From the millimetre `from` to `to`; the first lies at `along`. Only what lies between the
  // places `seenFrom` and `seenTo` is looked at.
  void draw(double along, double across, double from, double to, double seenFrom, double seenTo);

 private:
  void drawNumber(double along, double across, std::int64_t number);
  int stepOfNumbers() const;

  const StripCanvas& mCanvas;
  const StripColours& mColours;
  QFont mFont;
  QFontMetricsF mMetrics;
  double mScale;
  double mExtent;
  int mStep;  // millimetres from number to number
};

}  // namespace cutline
