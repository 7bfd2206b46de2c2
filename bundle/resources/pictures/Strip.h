// Pieces of tape and paper, seen from above and slightly from the front: the face that is printed
// on, and along its lower edge the backing that carries it.
#pragma once

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

inline constexpr double kTapeTop = 28;
inline constexpr double kTapeFaceBottom = 58;
inline constexpr double kTapeBottom = 64;

inline constexpr double kPaperTop = 25;
inline constexpr double kPaperBottom = 73;

struct Span {
  double left = 0;
  double right = 0;

  constexpr double centre() const { return (left + right) / 2; }
};

// The backing of one piece of tape, with its edge all around.
void drawBacking(Svg& svg, Span span);

// An uncut stretch of the printed layer on a backing.
void drawFace(Svg& svg, Span span);

// The printed layer of one label that was cut down to the backing: its corner comes off.
void drawPeelingFace(Svg& svg, Span span);

// A piece of woven tape, stitched along its edges.
void drawFabric(Svg& svg, Span span);

// A piece of paper from the roll.
void drawPaper(Svg& svg, Span span);

}  // namespace cutline::pictures
