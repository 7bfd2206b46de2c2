#include "host/dialog/StatusIcon.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <array>

namespace cutline {
namespace {

// Signs are drawn on a square of this side.
constexpr double kSide = 16;

void drawTick(QPainter& painter) {
  painter.drawPolyline(std::array<QPointF, 3>{QPointF(4.6, 8.2), {7.1, 10.7}, {11.6, 5.6}}.data(),
                       3);
}

void drawExclamation(QPainter& painter, double top) {
  painter.drawLine(QPointF(8, top), QPointF(8, top + 4));
  painter.drawPoint(QPointF(8, top + 6.8));
}

void drawLetterI(QPainter& painter) {
  painter.drawPoint(QPointF(8, 4.6));
  painter.drawLine(QPointF(8, 7.6), QPointF(8, 11.6));
}

void drawTriangle(QPainter& painter) {
  QPainterPath path(QPointF(8, 1.2));
  path.lineTo(15.4, 14.6);
  path.lineTo(0.6, 14.6);
  path.closeSubpath();
  painter.drawPath(path);
}

struct Sign {
  QRgb colour;
  bool isTriangle;
  void (*draw)(QPainter&);
};

constexpr auto kSigns = std::to_array<Sign>({
    {0xff2e8b57, false, drawTick},
    {0xff2f74c0, false, drawLetterI},
    {0xffc77700, true, [](QPainter& painter) { drawExclamation(painter, 5.6); }},
    {0xffc8342b, false, [](QPainter& painter) { drawExclamation(painter, 4.4); }},
});

}  // namespace

StatusIcon::StatusIcon(Severity severity, QWidget* parent) : QWidget(parent), mSeverity(severity) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StatusIcon::setSeverity(Severity severity) {
  mSeverity = severity;
  update();
}

QSize StatusIcon::sizeHint() const {
  const int side = fontMetrics().height();
  return {side, side};
}

void StatusIcon::paintEvent(QPaintEvent* /*event*/) {
  const Sign& sign = kSigns[static_cast<std::size_t>(mSeverity)];
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width() / kSide, height() / kSide);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.colour));
  if (sign.isTriangle) {
    drawTriangle(painter);
  } else {
    painter.drawEllipse(QPointF(8, 8), 7.2, 7.2);
  }
  painter.setPen(QPen(Qt::white, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  sign.draw(painter);
}

}  // namespace cutline
