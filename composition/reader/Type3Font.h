// A font whose glyphs are content streams (ISO 32000, 9.6.5).
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>

#include "composition/reader/GlyphFont.h"

namespace cutline {

class Type3Font : public GlyphFont {
 public:
  // The box of what a glyph's stream draws with these resources, in the glyph's coordinates.
  using Draw = std::function<InkArea(QPDFObjectHandle stream, QPDFObjectHandle resources)>;

  // `resources` are those of the page, for a font that has none.
  Type3Font(QPDFObjectHandle font, QPDFObjectHandle resources, Draw draw);

  const Glyph& glyph(unsigned code) override;

 private:
  static constexpr std::size_t kCodes = 256;

  void readNames(QPDFObjectHandle encoding);
  double widthOf(unsigned code);
  Glyph made(unsigned code);

  QPDFObjectHandle mFont;
  QPDFObjectHandle mResources;
  Draw mDraw;
  QPDFMatrix mMatrix;
  std::array<std::string, kCodes> mNames;
  std::array<std::optional<Glyph>, kCodes> mGlyphs;
};

}  // namespace cutline
