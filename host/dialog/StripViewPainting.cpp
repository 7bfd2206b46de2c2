// The part of StripView that paints.
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "host/dialog/Appearance.h"
#include "host/dialog/StripView.h"

namespace cutline {
namespace {

constexpr double kTornDepth = 5;
constexpr double kTornTail = 12;  // how far the tape goes on beyond its last label
constexpr double kSkippedOpacity = 0.22;
constexpr double kDimmedOpacity = 0.45;
constexpr double kNumberShare = 0.88;  // of the dialog's font

struct Colours {
  QColor desk;
  QColor tape;
  QColor skippedTape;
  QColor edge;
  QColor boundary;
  QColor printable;
  QColor number;
};

Colours coloursFor(const QPalette& palette) {
  const QColor desk = isDark(palette) ? QColor(0xff15171a) : QColor(0xffdfe2e3);
  const QColor number = isDark(palette) ? QColor(0xffa9aeb2) : QColor(0xff4d5256);
  return {desk,
          QColor(0xfffdfdfb),
          isDark(palette) ? QColor(0xff8a8d90) : QColor(0xffe9ebec),
          QColor(0xff8f9497),
          QColor(0xff9aa0a4),
          QColor(0xffbdd3ea),
          number};
}

// The outline of a torn end: from `from` to `to` in teeth that stand out by `depth`.
void addTeeth(QPainterPath& path, QPointF from, QPointF to, QPointF depth) {
  const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
  const int count = std::max(2, static_cast<int>(length / (2 * kTornDepth)));
  for (int tooth = 0; tooth < count; ++tooth) {
    const QPointF middle = from + (to - from) * ((tooth + 0.5) / count);
    path.lineTo(middle + depth);
    path.lineTo(from + (to - from) * ((tooth + 1.0) / count));
  }
}

// A piece of tape whose start is cut off straight or torn, and whose end is torn.
QPainterPath pieceAcross(const QRectF& rect, bool startsTorn) {
  const QRectF piece = rect.adjusted(startsTorn ? -kTornTail : 0, 0, kTornTail, 0);
  QPainterPath path(piece.topLeft());
  path.lineTo(piece.topRight());
  addTeeth(path, piece.topRight(), piece.bottomRight(), {kTornDepth, 0});
  path.lineTo(piece.bottomLeft());
  if (startsTorn) addTeeth(path, piece.bottomLeft(), piece.topLeft(), {kTornDepth, 0});
  path.closeSubpath();
  return path;
}

QPainterPath pieceDown(const QRectF& rect) {
  const QRectF piece = rect.adjusted(0, 0, 0, kTornTail);
  QPainterPath path(piece.topLeft());
  path.lineTo(piece.topRight());
  path.lineTo(piece.bottomRight());
  addTeeth(path, piece.bottomRight(), piece.bottomLeft(), {0, kTornDepth});
  path.closeSubpath();
  return path;
}

}  // namespace

void StripView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), coloursFor(palette()).desk);
  if (mLayout) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(-offset());
    for (int lane = 0; lane < mLayout->laneCount(); ++lane) {
      paintLane(painter, mLayout->lane(lane));
    }
    const QRectF visible(offset(), QSizeF(viewport()->size()));
    for (const int page : mLayout->pagesIn(visible)) paintLabel(painter, page);
    painter.resetTransform();
  }
  if (!mMessage.isEmpty()) paintMessage(painter);
}

void StripView::paintLane(QPainter& painter, const StripLayout::Lane& lane) const {
  const Colours colours = coloursFor(palette());
  const QPainterPath piece =
      mLayout->runsAcross() ? pieceAcross(lane.rect, lane.first > 0) : pieceDown(lane.rect);
  painter.setPen(QPen(colours.edge, 1));
  painter.setBrush(colours.tape);
  painter.drawPath(piece);
}

void StripView::paintLabel(QPainter& painter, int page) {
  const Colours colours = coloursFor(palette());
  const QRectF label = mLayout->label(page);
  const bool isSkipped = mPageCount > 0 && !isPrinted(page);
  if (isSkipped) painter.fillRect(label.adjusted(1, 1, -1, -1), colours.skippedTape);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colours.printable, 1, Qt::DotLine));
  painter.drawRect(mLayout->printableArea(page));
  painter.save();
  if (mIsDimmed) painter.setOpacity(kDimmedOpacity);
  if (isSkipped) painter.setOpacity(kSkippedOpacity);
  paintContent(painter, page);
  painter.restore();
  painter.setPen(QPen(colours.boundary, 1, Qt::DashLine));
  if (mLayout->runsAcross()) {
    painter.drawLine(label.topRight(), label.bottomRight());
  } else {
    painter.drawLine(label.bottomLeft(), label.bottomRight());
  }
  paintNumber(painter, page);
}

void StripView::paintContent(QPainter& painter, int page) {
  QImage picture = mCache.image(page);
  if (picture.isNull()) return;
  if (mIsMirrored) picture = picture.mirrored(true, false);
  painter.setClipRect(mLayout->label(page));
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  painter.drawImage(pictureRect(picture, page), picture);
}

// One that was drawn for this scale lies pixel upon pixel; another is stretched until that comes.
QRectF StripView::pictureRect(const QImage& picture, int page) const {
  const QRectF label = mLayout->label(page);
  if (!mCache.has(page, drawnScale())) return label;
  const double ratio = devicePixelRatioF();
  const auto onPixel = [ratio](double at) { return std::round(at * ratio) / ratio; };
  const QPointF corner = label.topLeft() - offset();
  return {QPointF(onPixel(corner.x()), onPixel(corner.y())) + offset(),
          QSizeF(picture.size()) / ratio};
}

void StripView::paintNumber(QPainter& painter, int page) const {
  if (mPageCount == 0) return;
  const Colours colours = coloursFor(palette());
  const QRectF label = mLayout->label(page);
  QFont numberFont = font();
  numberFont.setPointSizeF(numberFont.pointSizeF() * kNumberShare);
  numberFont.setBold(page == mCurrentPage);
  painter.setFont(numberFont);
  painter.setPen(page == mCurrentPage ? palette().color(QPalette::Text) : colours.number);
  const QString number = QString::number(page + 1);
  const QString caption = isPrinted(page) ? number : tr("%1 - not printed").arg(number);
  const double height = painter.fontMetrics().height();
  if (mLayout->runsAcross()) {
    painter.drawText(QRectF(label.left(), label.bottom() + 3, label.width(), height),
                     Qt::AlignHCenter | Qt::AlignTop, caption);
  } else {
    painter.drawText(QRectF(label.right() + 8, label.top(), viewport()->width(), label.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, number);
  }
}

void StripView::paintMessage(QPainter& painter) const {
  const QRect room = viewport()->rect().adjusted(24, 24, -24, -24);
  const QRect text = painter.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, mMessage);
  const QRect plate = text.adjusted(-14, -10, 14, 10);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRoundedRect(plate, 6, 6);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(text, Qt::AlignCenter | Qt::TextWordWrap, mMessage);
}

}  // namespace cutline
