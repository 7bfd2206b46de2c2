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

void folder(QPainterPath& path) {
  path.moveTo(2, 13);
  path.lineTo(2, 3.5);
  path.lineTo(6.2, 3.5);
  path.lineTo(7.7, 5.3);
  path.lineTo(13.2, 5.3);
  path.lineTo(13.2, 7.3);
  path.moveTo(2, 13);
  path.lineTo(4.4, 7.3);
  path.lineTo(15, 7.3);
  path.lineTo(12.6, 13);
  path.closeSubpath();
}

void sliders(QPainterPath& path) {
  struct Slider {
    double y;
    double knob;
  };
  constexpr double kKnob = 1.8;
  for (const Slider& each : {Slider{4, 10.5}, {8, 5}, {12, 9}}) {
    path.moveTo(2, each.y);
    path.lineTo(each.knob - kKnob, each.y);
    path.addEllipse(QPointF(each.knob, each.y), kKnob, kKnob);
    path.moveTo(each.knob + kKnob, each.y);
    path.lineTo(14, each.y);
  }
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

void turnForth(QPainterPath& path) {
  QPainterPath back;
  turnBack(back);
  path.addPath(QTransform(-1, 0, 0, 1, kSide, 0).map(back));
}

constexpr std::array<void (*)(QPainterPath&), 6> kGlyphs = {chevronRight, chevronDown, folder,
                                                            sliders,      turnBack,    turnForth};

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
