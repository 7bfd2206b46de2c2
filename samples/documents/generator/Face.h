// The outlines of a font's letters.
#pragma once

#include <QPainterPath>
#include <QRawFont>
#include <string_view>

namespace cutline::documents {

class Face {
 public:
  static constexpr double kUnits = 1000;  // of the font's size

  explicit Face(const QString& file);
  bool isValid() const { return mFont.isValid(); }

  // The baseline is at y = 0, y grows downwards.
  QPainterPath outline(char letter) const;
  double advance(char letter) const;
  // The width of a line of text, for a size of 1.
  double width(std::string_view letters) const;

 private:
  quint32 glyph(char letter) const;

  QRawFont mFont;
};

struct Faces {
  Face regular;
  Face bold;
  const Face& of(bool isBold) const { return isBold ? bold : regular; }
};

}  // namespace cutline::documents
