// Where a content stream's text is (ISO 32000, 9.3 and 9.4).
#pragma once

#include <functional>
#include <qpdf/QPDFMatrix.hh>
#include <string>

#include "composition/reader/GlyphFont.h"

namespace cutline {

struct TextState {
  GlyphFont* font = nullptr;
  double size = 0;
  double charSpacing = 0;
  double wordSpacing = 0;
  double scale = 1;  // across
  double leading = 0;
  double rise = 0;
  int mode = 0;

  bool isFilled() const { return mode != kInvisible && mode != kClipOnly; }
  bool isStroked() const { return mode % kWithClip == 1 || mode % kWithClip == 2; }

 private:
  static constexpr int kInvisible = 3, kWithClip = 4, kClipOnly = 7;
};

class TextCursor {
 public:
  // From the glyph's coordinates, in which it has size 1, to those of the content.
  using Seen = std::function<void(const Glyph&, const QPDFMatrix&)>;

  void set(const QPDFMatrix& matrix) { mLine = mNow = matrix; }
  // Onto a line whose start is so far from that of this one.
  void moveLine(double across, double up);
  // Calls `seen` for each glyph, and is behind the last one then.
  void show(const std::string& codes, const TextState& state, const Seen& seen);
  // Back by so many thousandths of the font's size.
  void moveBack(double thousandths, const TextState& state);

 private:
  void advance(double distance) { mNow.translate(distance, 0); }

  QPDFMatrix mLine, mNow;
};

}  // namespace cutline
