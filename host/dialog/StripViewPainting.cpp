// The part of StripView that paints.
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "host/dialog/LabelAsSeen.h"
#include "host/dialog/StripDrawing.h"
#include "host/dialog/StripRuler.h"
#include "host/dialog/StripView.h"

namespace cutline {
namespace {

constexpr double kDimmedOpacity = 0.45;
constexpr double kCaptionGap = 4;
constexpr double kPillPadding = 6;

}  // namespace

// Draws labels and what is said of them; the rest of a strip is StripDrawing's.
class StripView::LabelPainter {
 public:
  LabelPainter(StripView& view, QPainter& painter, const StripCanvas& canvas,
               const StripColours& colours)
      : mView(view), mPainter(painter), mCanvas(canvas), mColours(colours) {}

  void paintLabel(std::uint64_t label) const;
  void paintCaption(std::uint64_t label) const;

 private:
  QRectF seen(std::uint64_t label) const {
    return mView.mLayout->label(label).translated(-mView.offset());
  }
  QRectF snapped(const QRectF& rect) const;
  QRectF pictureRect(const QImage& picture, std::uint64_t label) const;
  QString fittingCaption(std::uint64_t label, double room) const;
  void paintPill(const QRectF& pill) const;
  QRectF captionRoom(std::uint64_t label) const;

  StripView& mView;
  QPainter& mPainter;
  const StripCanvas& mCanvas;
  const StripColours& mColours;
};

QRectF StripView::LabelPainter::snapped(const QRectF& rect) const {
  const bool across = mCanvas.runsAcross();
  const QRectF strip = rect.translated(mView.offset());
  return across ? mCanvas.rect(strip.left(), strip.top(), strip.width(), strip.height())
                : mCanvas.rect(strip.top(), strip.left(), strip.height(), strip.width());
}

void StripView::LabelPainter::paintLabel(std::uint64_t label) const {
  const double scale = mView.mLayout->scale();
  const QRectF area = printableAsSeen(mView.mContent->label);
  const QRectF whole = seen(label);
  mPainter.save();
  mPainter.setBrush(Qt::NoBrush);
  mPainter.setPen(QPen(mColours.printable, mCanvas.hair(), Qt::DotLine));
  const double half = mCanvas.hair() / 2;
  mPainter.drawRect(snapped(QRectF(whole.topLeft() + area.topLeft() * scale, area.size() * scale))
                        .adjusted(half, half, -half, -half));
  // Without labels there is the printer's own, empty.
  QImage picture = mView.labelCount() > 0 ? mView.mCache.image(mView.pageOf(label)) : QImage();
  if (!picture.isNull()) {
    if (mView.mIsDimmed) mPainter.setOpacity(kDimmedOpacity);
    if (mView.mContent->plan.rules().settings().mirrors) picture = picture.mirrored(true, false);
    mPainter.setClipRect(snapped(whole));
    if (!picture.hasAlphaChannel()) mPainter.setCompositionMode(QPainter::CompositionMode_Multiply);
    mPainter.drawImage(pictureRect(picture, label), picture);
  }
  mPainter.restore();
}

// One that was drawn for this scale lies pixel upon pixel; another is stretched until that comes.
QRectF StripView::LabelPainter::pictureRect(const QImage& picture, std::uint64_t label) const {
  const QRectF whole = snapped(seen(label));
  if (!mView.mCache.has(mView.pageOf(label), mView.drawnScale())) return whole;
  return {whole.topLeft(), QSizeF(picture.size()) / mView.devicePixelRatioF()};
}

QRectF StripView::LabelPainter::captionRoom(std::uint64_t label) const {
  const StripLayout& layout = *mView.mLayout;
  const QRectF whole = seen(label);
  const double beside = StripLayout::backing() + kCaptionGap;
  if (!layout.runsAcross())
    return {whole.right() + beside, whole.top(), layout.caption() - beside, whole.height()};
  return {whole.left(), whole.bottom() + beside, whole.width(), layout.caption() - beside};
}

// The longest words that have room; none at all where not even the number has.
QString StripView::LabelPainter::fittingCaption(std::uint64_t label, double room) const {
  for (const QString& words : mView.captions(label)) {
    if (mView.mCaptions.width(words) + 2 * kPillPadding <= room) return words;
  }
  return {};
}

void StripView::LabelPainter::paintCaption(std::uint64_t label) const {
  const QRectF room = captionRoom(label);
  const QString words = fittingCaption(label, room.width() + kPillPadding);
  if (words.isEmpty()) return;
  const bool isCurrent = label == mView.mCurrent && mView.labelCount() > 1;
  const double height = QFontMetricsF(mView.mCaptions.font()).height();
  const QSizeF size(mView.mCaptions.width(words) + 2 * kPillPadding, height);
  const double left = mCanvas.runsAcross() ? room.center().x() - size.width() / 2 : room.left();
  const double top = mCanvas.runsAcross() ? room.top() : room.center().y() - size.height() / 2;
  const QRectF pill = snapped(QRectF(QPointF(left, top), size));
  if (isCurrent) paintPill(pill);
  mPainter.setPen(isCurrent ? mView.palette().color(QPalette::HighlightedText) : mColours.caption);
  mView.mCaptions.draw(mPainter, pill.topLeft() + QPointF(kPillPadding, 0), words);
}

void StripView::LabelPainter::paintPill(const QRectF& pill) const {
  mPainter.setRenderHint(QPainter::Antialiasing);
  mPainter.setPen(Qt::NoPen);
  mPainter.setBrush(mView.palette().color(QPalette::Highlight));
  mPainter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
  mPainter.setRenderHint(QPainter::Antialiasing, false);
}

void StripView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), StripColours::of(palette()).desk);
  if (mLayout) paintStrip(painter);
  if (!mMessage.isEmpty()) paintMessage(painter);
}

void StripView::paintStrip(QPainter& painter) {
  // Nearly all lies on whole pixels, and is painted faster without smooth edges.
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  mCaptions.setFont(font());
  mNumbers.setFont(StripRuler::fontFor(font()));
  const StripColours colours = StripColours::of(palette());
  const QRectF area(offset(), QSizeF(viewport()->size()));
  const StripCanvas canvas(painter, mLayout->runsAcross(), offset(),
                           viewport()->mapTo(window(), QPoint(0, 0)), devicePixelRatioF());
  const StripDrawing drawing(canvas, colours, *mContent, *mLayout, area, mNumbers);
  const LabelPainter labels(*this, painter, canvas, colours);
  const StripLayout::Range lanes = mLayout->lanesIn(area);
  for (std::uint64_t index = lanes.first; index <= lanes.last; ++index) {
    const StripLayout::Lane lane = mLayout->lane(index);
    const StripLayout::Range seen = mLayout->labelsIn(lane, area);
    drawing.drawTape(lane);
    for (std::uint64_t label = seen.first; label <= seen.last; ++label) labels.paintLabel(label);
    drawing.drawSigns(lane);
    drawing.drawRuler(lane);
    if (labelCount() == 0) continue;
    for (std::uint64_t label = seen.first; label <= seen.last; ++label) labels.paintCaption(label);
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

// Of the page with the highest number.
QString StripView::widestCaption() const {
  const PageList& pages = mContent->plan.run().pages;
  if (pages.empty()) return {};
  const auto highest = std::max_element(pages.begin(), pages.end()) - pages.begin();
  const auto copies = std::uint64_t{mContent->plan.run().copies};
  const auto page = static_cast<std::uint64_t>(highest);
  return captions(mContent->plan.run().isCollated ? page + 1 : (page + 1) * copies).front();
}

// From the longest to the shortest.
QStringList StripView::captions(std::uint64_t label) const {
  const LabelRun& run = mContent->plan.run();
  const QString page = QString::number(run.pageOf(label));
  QStringList words{page};
  if (run.copies > 1) words.prepend(tr("%1 (copy %2)").arg(page).arg(run.copyOf(label)));
  const bool staysIn =
      label == labelCount() && mContent->plan.end() == PieceRun::End::StaysInPrinter;
  if (staysIn) words.prepend(tr("%1, stays in the printer").arg(words.front()));
  return words;
}

}  // namespace cutline
