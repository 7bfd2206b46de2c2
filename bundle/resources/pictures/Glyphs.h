// The sample text: a few letters and digits as pen strokes, so that no font is needed.
#pragma once

#include <string_view>

#include "bundle/resources/pictures/Geometry.h"
#include "bundle/resources/pictures/Svg.h"

namespace cutline::pictures {

struct Lettering {
  double height = 16;  // of a capital
  double pen = 2.6;
  bool mirrored = false;
};

// Writes `text` (of the letters A B C E F G and the digits 1 to 6) around `centre`. Mirrored text
// is the mirror image of the same text about the centre's vertical.
void write(Svg& svg, std::string_view text, Point centre, const Lettering& lettering);

}  // namespace cutline::pictures
