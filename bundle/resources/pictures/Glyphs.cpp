#include "bundle/resources/pictures/Glyphs.h"

#include <algorithm>
#include <array>

#include "bundle/resources/pictures/Outline.h"

namespace cutline::pictures {

namespace {

// Drawn in a space 10 wide and 16 high.
constexpr double kGlyphWidth = 10;
constexpr double kGlyphHeight = 16;
constexpr double kAdvance = 14.2;

struct Glyph {
  char character;
  std::string_view strokes;
};

constexpr std::array<Glyph, 12> kGlyphs = {{
    {'A', "M0,16 L5,0 L10,16 M1.9,10.8 L8.1,10.8"},
    {'B',
     "M0.8,7.8 L5.6,7.8 C8.3,7.8 10,9.4 10,11.9 C10,14.4 8.3,16 5.6,16 L0.8,16 L0.8,0 L5.2,0 "
     "C7.7,0 9.2,1.5 9.2,3.9 C9.2,6.3 7.7,7.8 5.2,7.8"},
    {'C',
     "M10,3.4 C9.1,1.2 7.5,0 5.4,0 C2.2,0 0.2,3.2 0.2,8 C0.2,12.8 2.2,16 5.4,16 C7.5,16 9.1,14.8 "
     "10,12.6"},
    {'E', "M9.4,0 L1,0 L1,16 L9.4,16 M1,7.8 L8,7.8"},
    {'F', "M9.6,0 L1.2,0 L1.2,16 M1.2,7.8 L8.2,7.8"},
    {'G',
     "M9.8,3.4 C8.9,1.2 7.3,0 5.2,0 C2,0 0,3.2 0,8 C0,12.8 2,16 5.2,16 C7.7,16 9.8,14.6 9.8,11.8 "
     "L9.8,8.8 L5.8,8.8"},
    {'1', "M2,3.6 L6,0 L6,16 M2.2,16 L9.4,16"},
    {'2',
     "M0.7,4.4 C0.7,1.7 2.5,0 5,0 C7.6,0 9.3,1.7 9.3,4.2 C9.3,6.5 7.9,8.2 5.7,10.4 L0.4,16 "
     "L9.8,16"},
    {'3',
     "M0.8,2.6 C1.7,0.9 3.1,0 5,0 C7.5,0 9.1,1.5 9.1,3.9 C9.1,6.2 7.5,7.7 4.4,7.7 C7.9,7.7 9.7,9.3 "
     "9.7,11.8 C9.7,14.3 7.8,16 5,16 C2.9,16 1.3,15 0.3,13.2"},
    {'4', "M7.6,16 L7.6,0 L0.2,11.4 L10,11.4"},
    {'5',
     "M9,0 L1.7,0 L1,7.6 C2,6.6 3.4,6 5,6 C7.9,6 9.7,8 9.7,10.9 C9.7,14 7.8,16 4.9,16 C2.9,16 "
     "1.3,15.1 0.4,13.4"},
    {'6',
     "M9,1.8 C8,0.6 6.8,0 5.4,0 C2.2,0 0.3,3.2 0.3,8.8 C0.3,13.4 2,16 5,16 C7.9,16 9.7,14 9.7,11 "
     "C9.7,8.2 7.9,6.3 5.2,6.3 C2.8,6.3 0.9,7.8 0.3,10"},
}};

std::string_view strokesOf(char character) {
  const auto* const found = std::find_if(kGlyphs.begin(), kGlyphs.end(),
                                         [&](const Glyph& g) { return g.character == character; });
  return found == kGlyphs.end() ? std::string_view() : found->strokes;
}

}  // namespace

void write(Svg& svg, std::string_view text, Point centre, const Lettering& lettering) {
  const double scale = lettering.height / kGlyphHeight;
  const double direction = lettering.mirrored ? -1 : 1;
  const double width = kAdvance * static_cast<double>(text.size() - 1) + kGlyphWidth;
  Point pen = {centre.x - direction * scale * width / 2, centre.y - lettering.height / 2};
  for (const char character : text) {
    svg.path(placed(strokesOf(character), {pen, scale, lettering.mirrored}),
             stroked(kInk, lettering.pen));
    pen.x += direction * scale * kAdvance;
  }
}

}  // namespace cutline::pictures
