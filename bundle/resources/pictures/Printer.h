// The printer at the picture's right edge: the tape leaves it to the left, first label first.
#pragma once

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

inline constexpr double kMouth = 210;      // where the tape comes into sight
inline constexpr double kInsideEnd = 216;  // tape drawn this far disappears in the printer

// The slot, which lies behind the tape; the body lies before it.
void drawSlot(Svg& svg, double top, double bottom);
void drawTapePrinter(Svg& svg);
void drawRollPrinter(Svg& svg);

// Where signs stand on the body.
inline constexpr Point kSignPlace = {236, 63};
inline constexpr Point kSecondSignPlace = {236, 19};

}  // namespace cutline::pictures
