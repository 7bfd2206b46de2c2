#include "composition/reader/GlyphShapes.h"

#include <ft2build.h>

#include <memory>
#include <stdexcept>
#include <type_traits>
#include FT_FREETYPE_H
#include FT_CID_H
#include FT_OUTLINE_H

namespace cutline {
namespace {

constexpr FT_Long kMostGlyphs = 2000;

void check(FT_Error error) {
  if (error != 0) throw std::runtime_error("a font that cannot be read");
}

struct Freed {
  void operator()(FT_Library library) const { FT_Done_FreeType(library); }
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
template <typename Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Freed>;

Owned<FT_Library> newLibrary() {
  FT_Library library = nullptr;
  check(FT_Init_FreeType(&library));
  return Owned<FT_Library>(library);
}

Owned<FT_Face> faceOf(FT_Library library, const std::string& file) {
  FT_Face face = nullptr;
  check(FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(file.data()),
                           static_cast<FT_Long>(file.size()), 0, &face));
  Owned<FT_Face> owned(face);
  const bool isOutlined = FT_IS_SCALABLE(face) && face->units_per_EM > 0;
  if (!isOutlined || face->num_glyphs > kMostGlyphs)
    throw std::runtime_error("a font of another kind");
  return owned;
}

Area inkOfGlyph(FT_Face face, FT_UInt glyph) {
  check(FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE));
  const FT_GlyphSlot slot = face->glyph;
  if (slot->format != FT_GLYPH_FORMAT_OUTLINE) throw std::runtime_error("a glyph without outlines");
  if (slot->outline.n_points == 0) return InkArea().area();
  FT_BBox box{};
  FT_Outline_Get_CBox(&slot->outline, &box);
  const auto size = [&](FT_Pos units) { return static_cast<double>(units) / face->units_per_EM; };
  return {size(box.xMin), size(box.yMin), size(box.xMax), size(box.yMax)};
}

unsigned numberOf(FT_Face face, FT_UInt glyph) {
  FT_UInt character = glyph;
  if (FT_IS_CID_KEYED(face)) check(FT_Get_CID_From_Glyph_Index(face, glyph, &character));
  return character;
}

}  // namespace

GlyphShapes::GlyphShapes(const std::string& file) {
  const Owned<FT_Library> library = newLibrary();
  const Owned<FT_Face> face = faceOf(library.get(), file);
  for (FT_UInt glyph = 0; glyph < static_cast<FT_UInt>(face->num_glyphs); ++glyph) {
    const Area ink = inkOfGlyph(face.get(), glyph);
    mGlyphs[numberOf(face.get(), glyph)] = ink;
    mAll.add(ink);
  }
}

Area GlyphShapes::inkOf(unsigned number) const {
  const auto found = mGlyphs.find(number);
  return found == mGlyphs.end() ? InkArea().area() : found->second;
}

}  // namespace cutline
