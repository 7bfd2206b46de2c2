// A font of a PDF, as far as the boxes of its glyphs tell.
#pragma once

#include <cstddef>

#include "composition/reader/InkArea.h"

namespace cutline {

// Both for a font of size 1.
struct Glyph {
  Area ink;            // nowhere for a blank
  double advance = 0;  // to the next glyph's origin
};

// What cannot be told is thrown: by its glyphs, or when it is made.
class GlyphFont {
 public:
  virtual ~GlyphFont() = default;

  // How many bytes of a text are one code.
  virtual std::size_t codeBytes() const { return 1; }
  virtual const Glyph& glyph(unsigned code) = 0;
};

}  // namespace cutline
