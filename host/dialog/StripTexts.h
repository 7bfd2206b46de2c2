// The short texts of a strip, numbers for the most part, each laid out once: that takes longer than
// to draw it.
#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QStaticText>
#include <QString>

namespace cutline {

class StripTexts {
 public:
  // Those that were laid out for another font are forgotten.
  void setFont(const QFont& font);
  const QFont& font() const noexcept { return mFont; }

  // The width in points.
  double width(const QString& text);
  // Draws with this font and the painter's pen.
  void draw(QPainter& painter, QPointF topLeft, const QString& text);

 private:
  const QStaticText& laidOut(const QString& text);

  QFont mFont;
  QHash<QString, QStaticText> mTexts;
};

}  // namespace cutline
