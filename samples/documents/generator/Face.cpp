#include "samples/documents/generator/Face.h"

#include <numeric>

namespace cutline::documents {

Face::Face(const QString& file) : mFont(file, kUnits, QFont::PreferNoHinting) {}

quint32 Face::glyph(char letter) const {
  const auto glyphs = mFont.glyphIndexesForString(QString(QLatin1Char(letter)));
  return glyphs.isEmpty() ? 0 : glyphs.front();
}

QPainterPath Face::outline(char letter) const { return mFont.pathForGlyph(glyph(letter)); }

double Face::advance(char letter) const {
  const auto advances = mFont.advancesForGlyphIndexes({glyph(letter)});
  return advances.isEmpty() ? 0 : advances.front().x();
}

double Face::width(std::string_view letters) const {
  return std::accumulate(letters.begin(), letters.end(), 0.0,
                         [this](double sum, char letter) { return sum + advance(letter); }) /
         kUnits;
}

}  // namespace cutline::documents
