// A font whose file a PDF has within (ISO 32000, 9.6.2, 9.6.3 and 9.7).
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>

#include "composition/reader/GlyphFont.h"
#include "composition/reader/GlyphShapes.h"

namespace cutline {

class EmbeddedFont : public GlyphFont {
 public:
  // A stream's bytes, unpacked.
  using Read = std::function<std::string(QPDFObjectHandle)>;

  // A font of one byte a code, or a composite one whose codes name its glyphs themselves. Throws
  // std::runtime_error for any other, and where its file is missing.
  EmbeddedFont(QPDFObjectHandle font, const Read& read);

  std::size_t codeBytes() const override { return mCodeBytes; }
  const Glyph& glyph(unsigned code) override;

 private:
  // Both give its descriptor.
  QPDFObjectHandle readSimple(QPDFObjectHandle font);
  QPDFObjectHandle readComposite(QPDFObjectHandle font);
  void readWidths(QPDFObjectHandle widths, unsigned first);
  void setWidth(unsigned code, double width);
  void readRuns(QPDFObjectHandle runs);

  std::size_t mCodeBytes = 1;
  // The codes of others stand for glyphs in ways that are not looked into: it may be any.
  bool mAreCodesGlyphs = false;
  std::map<unsigned, double> mWidths;  // by code, in thousandths
  double mOtherWidth = 0;
  std::optional<GlyphShapes> mShapes;
  std::map<unsigned, Glyph> mGlyphs;
};

}  // namespace cutline
