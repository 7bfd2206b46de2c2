#include "composition/reader/TextCursor.h"

#include <stdexcept>

namespace cutline {
namespace {

constexpr double kThousand = 1000;
constexpr unsigned kBitsPerByte = 8;

unsigned codeAt(const std::string& codes, std::size_t at, std::size_t bytes) {
  unsigned code = 0;
  for (std::size_t byte = 0; byte < bytes; ++byte)
    code = code << kBitsPerByte | static_cast<unsigned char>(codes[at + byte]);
  return code;
}

}  // namespace

void TextCursor::moveLine(double across, double up) {
  mLine.translate(across, up);
  mNow = mLine;
}

void TextCursor::show(const std::string& codes, const TextState& state, const Seen& seen) {
  if (state.font == nullptr) throw std::runtime_error("a text without a font");
  const std::size_t bytes = state.font->codeBytes();
  if (codes.size() % bytes != 0) throw std::runtime_error("a text ends within a code");
  for (std::size_t at = 0; at < codes.size(); at += bytes) {
    const unsigned code = codeAt(codes, at, bytes);
    const Glyph& glyph = state.font->glyph(code);
    QPDFMatrix matrix = mNow;
    matrix.concat({state.size * state.scale, 0, 0, state.size, 0, state.rise});
    seen(glyph, matrix);
    const double blank = bytes == 1 && code == ' ' ? state.wordSpacing : 0;
    advance((glyph.advance * state.size + state.charSpacing + blank) * state.scale);
  }
}

void TextCursor::moveBack(double thousandths, const TextState& state) {
  advance(-thousandths / kThousand * state.size * state.scale);
}

}  // namespace cutline
