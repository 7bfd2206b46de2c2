#include "host/dialog/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <array>

namespace cutline {
namespace {

// Glyphs are drawn on a square of this side.
constexpr double kSide = 16;
constexpr double kStroke = 1.5;

void chevronRight(QPainterPath& path) {
  path.moveTo(6, 3.5);
  path.lineTo(10.5, 8);
  path.lineTo(6, 12.5);
}

void chevronDown(QPainterPath& path) {
  path.moveTo(3.5, 6);
  path.lineTo(8, 10.5);
  path.lineTo(12.5, 6);
}

void mirrored(QPainterPath& path, void (*draw)(QPainterPath&)) {
  QPainterPath other;
  draw(other);
  path.addPath(QTransform(-1, 0, 0, 1, kSide, 0).map(other));
}

void chevronLeft(QPainterPath& path) { mirrored(path, chevronRight); }

void minus(QPainterPath& path) {
  path.moveTo(3.5, 8);
  path.lineTo(12.5, 8);
}

void plus(QPainterPath& path) {
  minus(path);
  path.moveTo(8, 3.5);
  path.lineTo(8, 12.5);
}

void folder(QPainterPath& path) {
  path.moveTo(1, 13);
  path.lineTo(1, 3.5);
  path.lineTo(5.2, 3.5);
  path.lineTo(6.7, 5.3);
  path.lineTo(12.2, 5.3);
  path.lineTo(12.2, 7.3);
  path.moveTo(1, 13);
  path.lineTo(3.4, 7.3);
  path.lineTo(14, 7.3);
  path.lineTo(11.6, 13);
  path.closeSubpath();
}

void turnBack(QPainterPath& path) {
  path.moveTo(6, 2.8);
  path.lineTo(2.8, 6);
  path.lineTo(6, 9.2);
  path.moveTo(2.8, 6);
  path.lineTo(9.6, 6);
  path.arcTo(QRectF(5.9, 6, 7.4, 7.4), 90, -180);
  path.lineTo(6, 13.4);
}

void turnForth(QPainterPath& path) { mirrored(path, turnBack); }

void disk(QPainterPath& path) {
  path.moveTo(2.5, 2.5);
  path.lineTo(11, 2.5);
  path.lineTo(13.5, 5);
  path.lineTo(13.5, 13.5);
  path.lineTo(2.5, 13.5);
  path.closeSubpath();
  path.addRect(5, 2.5, 5, 3.5);
  path.moveTo(5, 13.5);
  path.lineTo(5, 9);
  path.lineTo(11, 9);
  path.lineTo(11, 13.5);
}

void bin(QPainterPath& path) {
  path.moveTo(2.5, 4.2);
  path.lineTo(13.5, 4.2);
  path.moveTo(6, 4);
  path.lineTo(6, 2.2);
  path.lineTo(10, 2.2);
  path.lineTo(10, 4);
  path.moveTo(4, 4.5);
  path.lineTo(4.6, 13.8);
  path.lineTo(11.4, 13.8);
  path.lineTo(12, 4.5);
  for (const double x : {6.7, 9.3}) {
    path.moveTo(x, 7);
    path.lineTo(x, 11.3);
  }
}

// In the order of Glyph.
constexpr std::array<void (*)(QPainterPath&), 11> kGlyphs = {
    chevronRight, chevronDown, folder,       turnBack, turnForth, disk,
    bin,          chevronLeft, chevronRight, minus,    plus};

class GlyphEngine : public QIconEngine {
 public:
  explicit GlyphEngine(Glyph glyph) : mGlyph(glyph) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    QPainterPath path;
    kGlyphs[static_cast<std::size_t>(mGlyph)](path);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kSide, rect.height() / kSide);
    painter->setPen(QPen(QApplication::palette().color(group, role), kStroke, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new GlyphEngine(*this); }

 private:
  Glyph mGlyph;
};

}  // namespace

QIcon icon(Glyph glyph) { return QIcon(new GlyphEngine(glyph)); }

}  // namespace cutline
