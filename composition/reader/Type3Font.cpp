#include "composition/reader/Type3Font.h"

#include <stdexcept>
#include <utility>

namespace cutline {

Type3Font::Type3Font(QPDFObjectHandle font, QPDFObjectHandle resources, Draw draw)
    : mFont(std::move(font)), mResources(std::move(resources)), mDraw(std::move(draw)) {
  QPDFObjectHandle matrix = mFont.getKey("/FontMatrix");
  if (!matrix.isMatrix()) throw std::runtime_error("a font without a matrix");
  mMatrix = QPDFMatrix(matrix.getArrayAsMatrix());
  if (QPDFObjectHandle own = mFont.getKey("/Resources"); own.isDictionary()) mResources = own;
  readNames(mFont.getKey("/Encoding"));
}

// Numbers say which code the next name is of.
void Type3Font::readNames(QPDFObjectHandle encoding) {
  if (!encoding.isDictionary()) throw std::runtime_error("a font without an encoding");
  QPDFObjectHandle names = encoding.getKey("/Differences");
  if (!names.isArray()) throw std::runtime_error("a font without names");
  std::size_t code = 0;
  for (QPDFObjectHandle& item : names.getArrayAsVector()) {
    if (item.isInteger())
      code = static_cast<std::size_t>(item.getIntValue());
    else if (item.isName())
      mNames.at(code++) = item.getName();
  }
}

double Type3Font::widthOf(unsigned code) {
  QPDFObjectHandle first = mFont.getKey("/FirstChar");
  QPDFObjectHandle widths = mFont.getKey("/Widths");
  if (!first.isInteger() || !widths.isArray()) throw std::runtime_error("a font without widths");
  const long long at = static_cast<long long>(code) - first.getIntValue();
  double width = 0;
  if (at >= 0 && at < widths.getArrayNItems())
    widths.getArrayItem(static_cast<int>(at)).getValueAsNumber(width);
  return width;
}

Glyph Type3Font::made(unsigned code) {
  Glyph glyph{InkArea().area(), widthOf(code) * mMatrix.a};
  QPDFObjectHandle procedures = mFont.getKey("/CharProcs");
  if (mNames.at(code).empty() || !procedures.isDictionary()) return glyph;
  QPDFObjectHandle procedure = procedures.getKey(mNames.at(code));
  if (!procedure.isStream()) return glyph;
  const InkArea ink = mDraw(procedure, mResources);
  if (!ink.isEmpty()) glyph.ink = moved(mMatrix, ink.area());
  return glyph;
}

const Glyph& Type3Font::glyph(unsigned code) {
  std::optional<Glyph>& glyph = mGlyphs.at(code);
  if (!glyph) glyph = made(code);
  return *glyph;
}

}  // namespace cutline
