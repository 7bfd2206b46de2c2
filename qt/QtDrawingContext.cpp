#include "qt/QtDrawingContext.h"

#include <QPainter>
#include <algorithm>

#include "platform/ports/View.h"
#include "qt/QtImage.h"

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

}  // namespace cutline
