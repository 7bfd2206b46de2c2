#include "host/dialog/StripView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "composition/PickedPages.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr double kZoomStep = 1.25;
constexpr double kLeastZoom = 0.4;
constexpr double kMostZoom = 8;
constexpr int kKeyStep = 40;
constexpr QSize kPreferredSize{460, 480};
constexpr QSize kLeastSize{280, 180};

struct ZoomKey {
  int key;
  void (StripView::*change)();
};
constexpr std::array kZoomKeys = std::to_array<ZoomKey>({
    {Qt::Key_Plus, &StripView::zoomIn},
    {Qt::Key_Equal, &StripView::zoomIn},
    {Qt::Key_Minus, &StripView::zoomOut},
    {Qt::Key_0, &StripView::zoomToFit},
});

}  // namespace

StripView::StripView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::StyledPanel);
  setAccessibleRole(*this, QAccessible::Graphic);
  setAccessibleName(tr("Preview of the labels"));
  horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
  verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
}

QSize StripView::sizeHint() const { return kPreferredSize; }
QSize StripView::minimumSizeHint() const { return kLeastSize; }

void StripView::setLabels(const LabelPage& label, int count) {
  if (mLabel != label) mCache.clear();
  mCache.setOld();
  mLabel = label;
  mPageCount = count;
  pick();
  mCurrentPage = std::clamp(mCurrentPage, 0, std::max(0, count - 1));
  layOut();
  emit currentPageChanged(mCurrentPage);
}

void StripView::setSelection(const PageSelection& selection) {
  mSelection = selection;
  pick();
  viewport()->update();
}

void StripView::pick() {
  mIsPicked.assign(static_cast<std::size_t>(mPageCount), false);
  for (const int page : pickedPages(mSelection, mPageCount)) {
    mIsPicked[static_cast<std::size_t>(page)] = true;
  }
}

bool StripView::isPrinted(int page) const { return mIsPicked[static_cast<std::size_t>(page)]; }

void StripView::setMirrored(bool mirrored) {
  mIsMirrored = mirrored;
  viewport()->update();
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
  mCache.insert(page, scale, image);
  viewport()->update();
}

void StripView::layOut() {
  if (!mLabel) return;
  mLayout.emplace(StripContent{*mLabel, std::max(1, mPageCount)}, QSizeF(viewport()->size()),
                  mZoom);
  setBars();
  wantPages();
  viewport()->update();
}

void StripView::setBars() {
  const QSizeF whole = mLayout->size();
  const QSize view = viewport()->size();
  horizontalScrollBar()->setPageStep(view.width());
  horizontalScrollBar()->setSingleStep(kKeyStep);
  horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(whole.width()) - view.width()));
  verticalScrollBar()->setPageStep(view.height());
  verticalScrollBar()->setSingleStep(kKeyStep);
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(whole.height()) - view.height()));
}

QPointF StripView::offset() const {
  return {static_cast<double>(horizontalScrollBar()->value()),
          static_cast<double>(verticalScrollBar()->value())};
}

double StripView::drawnScale() const { return mLayout->scale() * devicePixelRatioF(); }

void StripView::wantPages() {
  if (!mLayout || mPageCount == 0) return;
  const QRectF visible(offset(), QSizeF(viewport()->size()));
  const double scale = drawnScale();
  std::deque<PageRequest> requests;
  for (const int page : mLayout->pagesIn(visible)) {
    if (!mCache.has(page, scale)) requests.push_back({page, scale});
  }
  emit pagesWanted(requests);
}

void StripView::setCurrentPage(int page) {
  if (!mLayout || mPageCount == 0) return;
  mCurrentPage = std::clamp(page, 0, pageCount() - 1);
  const QRectF label = mLayout->label(mCurrentPage);
  const QPointF corner = label.center() - QPointF(viewport()->width(), viewport()->height()) / 2;
  const QRectF visible(offset(), QSizeF(viewport()->size()));
  if (!visible.contains(label)) {
    horizontalScrollBar()->setValue(static_cast<int>(corner.x()));
    verticalScrollBar()->setValue(static_cast<int>(corner.y()));
  }
  viewport()->update();
  emit currentPageChanged(mCurrentPage);
}

bool StripView::canZoomIn() const noexcept { return mZoom * kZoomStep <= kMostZoom; }
bool StripView::canZoomOut() const noexcept { return mZoom / kZoomStep >= kLeastZoom; }

void StripView::zoomIn() {
  if (canZoomIn()) setZoom(mZoom * kZoomStep);
}
void StripView::zoomOut() {
  if (canZoomOut()) setZoom(mZoom / kZoomStep);
}
void StripView::zoomToFit() { setZoom(1); }

void StripView::setZoom(double zoom) {
  mZoom = zoom;
  layOut();
  if (mCurrentPage > 0) setCurrentPage(mCurrentPage);
  emit zoomChanged();
}

void StripView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  layOut();
}

void StripView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  wantPages();
}

bool StripView::stepByKey(int key) {
  struct Step {
    int key;
    int page;
  };
  const std::array steps = std::to_array<Step>({{Qt::Key_PageDown, mCurrentPage + 1},
                                                {Qt::Key_PageUp, mCurrentPage - 1},
                                                {Qt::Key_Home, 0},
                                                {Qt::Key_End, pageCount() - 1}});
  for (const Step& step : steps) {
    if (step.key != key) continue;
    setCurrentPage(step.page);
    return true;
  }
  return false;
}

void StripView::keyPressEvent(QKeyEvent* event) {
  if (stepByKey(event->key())) return;
  for (const ZoomKey& row : kZoomKeys) {
    if (row.key == event->key()) return (this->*row.change)();
  }
  QAbstractScrollArea::keyPressEvent(event);
}

void StripView::mousePressEvent(QMouseEvent* event) {
  if (!mLayout || mPageCount == 0) return;
  const int page = mLayout->pageAt(event->position() + offset());
  if (page >= 0) setCurrentPage(page);
}

void StripView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    return QAbstractScrollArea::wheelEvent(event);
  }
  if (event->angleDelta().y() > 0) zoomIn();
  if (event->angleDelta().y() < 0) zoomOut();
}

}  // namespace cutline
