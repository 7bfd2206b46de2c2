// The printer at the picture's right edge: the tape leaves it to the left, first label first.
#pragma once

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

inline constexpr double kMouth = 212;      // where the tape comes into sight
inline constexpr double kInsideEnd = 218;  // tape drawn this far disappears in the printer

// The slot, which lies behind the tape; the body lies before it.
void drawSlot(Svg& svg, double top, double bottom);
void drawTapePrinter(Svg& svg);
void drawRollPrinter(Svg& svg);

// Where signs stand on the body.
inline constexpr Point kUpperSign = {237.5, 18.5};
inline constexpr Point kLowerSign = {237.5, 65.5};

}  // namespace cutline::pictures
