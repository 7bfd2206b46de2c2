// The signs that say what happens at a place: who cuts, how deep, and what the printer keeps.
#pragma once

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

// The printer's blade above the tape, its point at `tip`.
void drawBlade(Svg& svg, Point tip, Colour colour);

// A blade that stays away: grey and struck through.
void drawNoBlade(Svg& svg, Point tip);

// Scissors in a hand's reach, cutting upwards, the point where their blades cross at `pivot`.
void drawScissors(Svg& svg, Point pivot);

// Two links of a chain around `centre`.
void drawLinks(Svg& svg, Point centre);

// A waste bin around `centre`.
void drawBin(Svg& svg, Point centre);

// Two triangles on either side of a mirror, around `centre`.
void drawMirror(Svg& svg, Point centre);

}  // namespace cutline::pictures
