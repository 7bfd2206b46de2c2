#include "host/dialog/StripView.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "host/dialog/LabelAsSeen.h"
#include "host/dialog/LabelPicture.h"
#include "host/dialog/StripColours.h"
#include "host/dialog/StripRuler.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr double kZoomStep = 1.25;
constexpr double kLeastZoom = 0.4;
constexpr double kMostZoom = 8;
constexpr int kKeyStep = 40;
constexpr double kMostBarSteps = 1 << 30;
constexpr double kCaptionAir = 6;
constexpr double kPillAir = 16;
constexpr QSize kPreferredView{760, 150};
constexpr QSize kLeastSize{280, 150};

struct ZoomKey {
  int key;
  void (StripView::*change)();
};
constexpr std::array kKeys = std::to_array<ZoomKey>({
    {Qt::Key_Plus, &StripView::zoomIn},
    {Qt::Key_Equal, &StripView::zoomIn},
    {Qt::Key_Minus, &StripView::zoomOut},
    {Qt::Key_0, &StripView::zoomToFit},
    {Qt::Key_Return, &StripView::showLarge},
    {Qt::Key_Enter, &StripView::showLarge},
});

}  // namespace

StripView::StripView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::StyledPanel);
  setAccessibleRole(*this, QAccessible::Graphic);
  setAccessibleName(tr("Preview of the labels"));
  horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
  verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
  colourBars();
}

// They belong to the desk that the strip lies on.
void StripView::colourBars() {
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, StripColours::of(colours).desk);
    bar->setPalette(colours);
  }
}

QSize StripView::sizeHint() const { return kPreferredView; }
QSize StripView::minimumSizeHint() const { return kLeastSize; }

void StripView::setContent(const StripContent& content) {
  if (mContent == content) return;
  if (mContent && mContent->label != content.label) mCache.clear();
  mContent = content;
  mCurrent = std::clamp<std::uint64_t>(mCurrent, 1, std::max<std::uint64_t>(1, labelCount()));
  layOut();
  emit currentLabelChanged();
}

void StripView::setPicturesOld() {
  mCache.setOld();
  wantPages();
}

std::uint64_t StripView::labelCount() const noexcept {
  return mContent && mContent->hasDocument ? mContent->plan.labels() : 0;
}

int StripView::pageOf(std::uint64_t label) const {
  return static_cast<int>(mContent->plan.run().pageOf(label)) - 1;
}

void StripView::setDimmed(bool dimmed) {
  if (mIsDimmed == dimmed) return;
  mIsDimmed = dimmed;
  viewport()->update();
}

void StripView::setMessage(const QString& message) {
  mMessage = message;
  describe();
  viewport()->update();
}

void StripView::setWords(const QString& words) {
  mWords = words;
  describe();
}

void StripView::describe() {
  tellAccessibleDescription(*this, mMessage.isEmpty() ? mWords : mMessage);
}

void StripView::showPage(int page, double scale, const QImage& image) {
  mCache.insert(page, scale, inkAlone(image));
  viewport()->update();
}

StripRoom StripView::room() const {
  const QFontMetricsF metrics(font());
  const bool across = runsAcross(mContent->label);
  const double caption = across ? metrics.height() + kCaptionAir
                                : metrics.horizontalAdvance(widestCaption()) + kPillAir;
  return {QSizeF(viewport()->size()), StripRuler::extent(font(), across), std::ceil(caption)};
}

void StripView::layOut() {
  if (!mContent) return;
  mLayout.emplace(*mContent, room(), mZoom);
  if (isVisible()) setBars();
  wantPages();
  viewport()->update();
}

// More pixels than a bar has steps are scrolled several at a time.
void StripView::setBars() {
  const QSizeF whole = mLayout->size();
  const QSize view = viewport()->size();
  mPixelsPerStep =
      std::max(1.0, std::ceil(std::max(whole.width(), whole.height()) / kMostBarSteps));
  const auto steps = [this](double pixels) {
    return static_cast<int>(std::max(0.0, std::ceil(pixels / mPixelsPerStep)));
  };
  const auto set = [&](QScrollBar& bar, double length, int page) {
    bar.setPageStep(std::max(1, steps(page)));
    bar.setSingleStep(std::max(1, steps(kKeyStep)));
    bar.setRange(0, steps(std::floor(length) - page));
  };
  set(*horizontalScrollBar(), whole.width(), view.width());
  set(*verticalScrollBar(), whole.height(), view.height());
}

QPointF StripView::offset() const {
  return QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value()) * mPixelsPerStep;
}

void StripView::scrollTo(QPointF corner) {
  const auto steps = [this](double pixels) {
    return static_cast<int>(std::clamp(pixels / mPixelsPerStep, 0.0, kMostBarSteps));
  };
  horizontalScrollBar()->setValue(steps(corner.x()));
  verticalScrollBar()->setValue(steps(corner.y()));
}

double StripView::drawnScale() const { return mLayout->scale() * devicePixelRatioF(); }

void StripView::wantPages() {
  if (!mLayout || labelCount() == 0) return;
  const QRectF area(offset(), QSizeF(viewport()->size()));
  const double scale = drawnScale();
  std::set<int> seen;
  std::deque<PageRequest> requests;
  const StripLayout::Range lanes = mLayout->lanesIn(area);
  for (std::uint64_t index = lanes.first; index <= lanes.last; ++index) {
    const StripLayout::Range labels = mLayout->labelsIn(mLayout->lane(index), area);
    for (std::uint64_t label = labels.first; label <= labels.last; ++label) {
      const int page = pageOf(label);
      if (seen.insert(page).second && !mCache.has(page, scale)) requests.push_back({page, scale});
    }
  }
  mCache.setRoom(2 * seen.size());
  emit pagesWanted(requests);
}

void StripView::setCurrentLabel(std::uint64_t label) {
  if (!mLayout || labelCount() == 0) return;
  mCurrent = std::clamp<std::uint64_t>(label, 1, labelCount());
  showCurrent();
  viewport()->update();
  emit currentLabelChanged();
}

// Scrolls no further than it must, but a label that fills the view stands in its middle.
void StripView::showCurrent() {
  const QRectF around = mLayout->surroundings(mCurrent);
  const QSizeF view(viewport()->size());
  const QRectF visible(offset(), view);
  if (!mZoom.isLarge && visible.contains(around)) return;
  const QPointF middle = around.center() - QPointF(view.width(), view.height()) / 2;
  scrollTo(middle);
}

bool StripView::canZoomIn() const noexcept {
  return mContent && !mZoom.isLarge && mZoom.factor * kZoomStep <= kMostZoom;
}
bool StripView::canZoomOut() const noexcept {
  return mContent && (mZoom.isLarge || mZoom.factor / kZoomStep >= kLeastZoom);
}

void StripView::zoomIn() {
  if (canZoomIn()) setZoom({mZoom.factor * kZoomStep, false});
}
void StripView::zoomOut() {
  if (mZoom.isLarge) return leaveLarge();
  if (canZoomOut()) setZoom({mZoom.factor / kZoomStep, false});
}
void StripView::zoomToFit() { setZoom({}); }

void StripView::setZoom(StripZoom zoom) {
  mZoom = zoom;
  layOut();
  if (mLayout) showCurrent();
  emit zoomChanged();
}

void StripView::showLarge() {
  if (mZoom.isLarge || labelCount() == 0) return;
  mOffsetBefore = offset();
  setZoom({mZoom.factor, true});
}

void StripView::leaveLarge() {
  if (!mZoom.isLarge) return;
  mZoom.isLarge = false;
  layOut();
  scrollTo(mOffsetBefore);
  showCurrent();
  emit zoomChanged();
}

void StripView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  layOut();
}

// Before, the view has hardly any room: bars that it needed then would be seen for a moment. Those
// that it needs now would wait for the loop of events, as its size has only just changed.
void StripView::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  layOut();
  QEvent now(QEvent::LayoutRequest);
  QCoreApplication::sendEvent(this, &now);
}

void StripView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange) layOut();
  if (event->type() == QEvent::PaletteChange) colourBars();
}

void StripView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  wantPages();
}

bool StripView::stepByKey(int key) {
  struct Step {
    int key;
    std::uint64_t label;
  };
  const std::array steps =
      std::to_array<Step>({{Qt::Key_PageDown, mCurrent + 1},
                           {Qt::Key_PageUp, std::max<std::uint64_t>(1, mCurrent - 1)},
                           {Qt::Key_Home, 1},
                           {Qt::Key_End, labelCount()}});
  for (const Step& step : steps) {
    if (step.key != key) continue;
    setCurrentLabel(step.label);
    return true;
  }
  return false;
}

void StripView::keyPressEvent(QKeyEvent* event) {
  if (stepByKey(event->key())) return;
  if (event->key() == Qt::Key_Escape && mZoom.isLarge) return leaveLarge();
  for (const ZoomKey& row : kKeys) {
    if (row.key == event->key()) return (this->*row.change)();
  }
  QAbstractScrollArea::keyPressEvent(event);
}

void StripView::mousePressEvent(QMouseEvent* event) {
  mHasJustLeft = false;
  if (!mLayout || labelCount() == 0 || event->button() != Qt::LeftButton) return;
  if (mZoom.isLarge) {
    leaveLarge();
    mHasJustLeft = true;
    return;
  }
  const std::uint64_t label = mLayout->labelAt(event->position() + offset());
  if (label > 0) setCurrentLabel(label);
}

// The first press of the two may have been to go back.
void StripView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!mLayout || labelCount() == 0 || event->button() != Qt::LeftButton) return;
  if (mHasJustLeft || mLayout->labelAt(event->position() + offset()) == 0) return;
  showLarge();
}

void StripView::contextMenuEvent(QContextMenuEvent* event) {
  if (!mLayout || labelCount() == 0) return;
  if (event->reason() == QContextMenuEvent::Mouse) {
    const std::uint64_t label = mLayout->labelAt(QPointF(event->pos()) + offset());
    if (label == 0) return;
    setCurrentLabel(label);
  }
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(tr("Print this label only"), this,
                  [this] { emit onlyThisWanted(mContent->plan.run().pageOf(mCurrent)); });
  menu->addAction(mZoom.isLarge ? tr("Show all labels") : tr("Show large"), this,
                  [this] { mZoom.isLarge ? leaveLarge() : showLarge(); });
  menu->popup(event->globalPos());
}

// A strip of lanes side by side has nothing below what is seen.
void StripView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    const bool isSideways = verticalScrollBar()->maximum() == 0;
    if (!isSideways) return QAbstractScrollArea::wheelEvent(event);
    QCoreApplication::sendEvent(horizontalScrollBar(), event);
    return;
  }
  if (event->angleDelta().y() > 0) zoomIn();
  if (event->angleDelta().y() < 0) zoomOut();
}

}  // namespace cutline
