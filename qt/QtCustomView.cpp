#include "qt/QtCustomView.h"

#include <QAccessible>
#include <QMetaObject>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/ports/View.h"
#include "qt/QtPicture.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {

namespace {

QPainter::CompositionMode toMode(CompositingOperation operation) {
  return operation == CompositingOperation::copy ? QPainter::CompositionMode_Source
                                                 : QPainter::CompositionMode_SourceOver;
}

// From y-up image coordinates to y-down ones.
QRectF toSource(const Rect& fromRect, const QSizeF& image) {
  if (fromRect.size.width <= 0 || fromRect.size.height <= 0) return {{}, image};
  return {fromRect.origin.x, image.height() - fromRect.origin.y - fromRect.size.height,
          fromRect.size.width, fromRect.size.height};
}

// Where a view's left edge and upper edge stand in the superview whose context is drawn on.
QPointF offsetIn(const View& drawn, const View& view) {
  QPointF offset;
  const View* each = &view;
  for (; each && each != &drawn; each = each->superview()) {
    const View* const above = each->superview();
    if (!above) return {};
    const Rect frame = each->frame();
    offset += {frame.origin.x, above->frame().size.height - frame.origin.y - frame.size.height};
  }
  return offset;
}

}  // namespace

QtDrawingContext::QtDrawingContext(QPainter& painter, const View& view, bool flipped) noexcept
    : mPainter(painter), mFlipped(flipped), mFocused{&view} {}

QtDrawingContext::~QtDrawingContext() {
  while (mSaved > 0) QtDrawingContext::restoreGraphicsState();
}

void QtDrawingContext::saveGraphicsState() noexcept {
  mPainter.save();
  ++mSaved;
}

void QtDrawingContext::restoreGraphicsState() noexcept {
  if (mSaved == 0) return;
  mPainter.restore();
  --mSaved;
}

void QtDrawingContext::lockFocus(const View& view) noexcept { mFocused.push_back(&view); }

void QtDrawingContext::unlockFocus(const View& view) noexcept {
  if (mFocused.size() > 1 && mFocused.back() == &view) mFocused.pop_back();
}

void QtDrawingContext::drawAtPoint(const Image& image, const Point& point, const Rect& fromRect,
                                   CompositingOperation operation, double fraction) noexcept {
  const auto* const drawable = dynamic_cast<const QtImage*>(&image);
  if (!drawable) return;
  const View& focused = *mFocused.back();
  const QRectF source = toSource(fromRect, drawable->picture().size());
  const double lower = mFlipped ? point.y : focused.frame().size.height - point.y;
  const QRectF target(QPointF(point.x, lower - source.height()), source.size());
  mPainter.save();
  mPainter.setOpacity(std::clamp(fraction, 0.0, 1.0));
  mPainter.setCompositionMode(toMode(operation));
  drawable->picture().draw(mPainter, target.translated(offsetIn(*mFocused.front(), focused)),
                           source);
  mPainter.restore();
}

namespace {

Rect toViewRect(const QRect& rect, double viewHeight, bool flipped) {
  const double y = flipped ? rect.y() : viewHeight - rect.y() - rect.height();
  return {{static_cast<double>(rect.x()), y},
          {static_cast<double>(rect.width()), static_cast<double>(rect.height())}};
}

}  // namespace

void ClientWidget::setClient(const View* view, CustomViewClient* client) {
  mView = view;
  mClient = client;
  mAnnouncedWords = words();
  update();
}

QString ClientWidget::words() const {
  return mClient ? toQString(mClient->accessibilityLabel()) : QString();
}

void ClientWidget::announceNewWordsSoon() {
  if (mWillAnnounce) return;
  mWillAnnounce = true;
  QMetaObject::invokeMethod(
      this, [this] { announceNewWords(); }, Qt::QueuedConnection);
}

void ClientWidget::announceNewWords() {
  mWillAnnounce = false;
  const QString now = words();
  if (now == mAnnouncedWords) return;
  mAnnouncedWords = now;
  QAccessibleEvent event(this, AccessibleDrawing::whereWordsAre(*this) == QAccessible::Name
                                   ? QAccessible::NameChanged
                                   : QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void ClientWidget::paintEvent(QPaintEvent* event) {
  if (!mClient) return;
  QPainter painter(this);
  const bool flipped = mClient->isFlipped();
  QtDrawingContext context(painter, *mView, flipped);
  mClient->drawRect(toViewRect(event->rect(), mView->frame().size.height, flipped), context);
}

QtCustomView::QtCustomView(const Rect& frame, CustomViewClient* client,
                           std::shared_ptr<QtActions> actions)
    : QtViewOf(new ClientWidget, frame, std::move(actions)), mClient(client) {
  QtCustomView::setClient(client);
}

// The widget may stay a little longer when the view goes inside an action.
QtCustomView::~QtCustomView() { QtCustomView::setClient(nullptr); }

void QtCustomView::setClient(CustomViewClient* client) noexcept {
  mClient = client;
  if (widget()) widget()->setClient(this, client);
}

void QtCustomView::drawSuper(const Rect&, DrawingContext&) noexcept {
  // A plain QWidget draws nothing of its own.
}

void QtCustomView::setNeedsDisplay(bool needsDisplay) noexcept {
  QtViewOf::setNeedsDisplay(needsDisplay);
  if (needsDisplay && widget()) widget()->announceNewWordsSoon();
}

std::string QtCustomView::accessibilityLabel() const noexcept {
  const std::string label = QtViewOf::accessibilityLabel();
  return label.empty() && mClient ? mClient->accessibilityLabel() : label;
}

}  // namespace cutline
