// The signs that say what happens at a place: who cuts, how deep, and what the printer keeps.
#pragma once

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

// A knife in the gap around `x`: the printer cuts through the whole tape.
void drawFullCutKnife(Svg& svg, double x);

// A knife on the line at `x`: the printer cuts the printed layer and goes no deeper.
void drawHalfCutKnife(Svg& svg, double x);

// A knife at rest above `x`, struck through: the printer doesn't cut.
void drawNoKnife(Svg& svg, double x);

// Scissors in a hand, cutting upwards into the lower edge of the tape at `x`.
void drawScissors(Svg& svg, double x);

// A waste bin around `centre`.
void drawBin(Svg& svg, Point centre);

// Two links of a chain, on a plate around `centre`.
void drawLinks(Svg& svg, Point centre);

// Two triangles on either side of a mirror, on a plate around `centre`.
void drawMirror(Svg& svg, Point centre);

}  // namespace cutline::pictures
