// The glyphs of a font file that a PDF has within.
#pragma once

#include <map>
#include <string>

#include "composition/reader/InkArea.h"

namespace cutline {

class GlyphShapes {
 public:
  // The file's bytes: TrueType, OpenType, CFF or Type 1. Throws std::runtime_error where it cannot
  // be read, or has more glyphs than are soon gone through.
  explicit GlyphShapes(const std::string& file);

  // The box of the glyph of this number, for a font of size 1: in a font that has them by character
  // collections the glyph of this character. Nowhere where it is blank or missing.
  Area inkOf(unsigned number) const;
  // The box of all glyphs, one upon the other.
  const Area& inkOfAll() const { return mAll.area(); }

 private:
  std::map<unsigned, Area> mGlyphs;
  InkArea mAll;
};

}  // namespace cutline
