#include "plain/RecordingDrawingContext.h"

#include "platform/ports/Drawing.h"

namespace cutline {

void RecordingDrawingContext::saveGraphicsState() noexcept { ++mSaved; }

void RecordingDrawingContext::restoreGraphicsState() noexcept {
  if (--mSaved < 0) mMismatched = true;
}

void RecordingDrawingContext::lockFocus(const View& view) noexcept { mFocused.push_back(&view); }

void RecordingDrawingContext::unlockFocus(const View& view) noexcept {
  if (mFocused.empty() || mFocused.back() != &view) {
    mMismatched = true;
    return;
  }
  mFocused.pop_back();
}

void RecordingDrawingContext::drawAtPoint(const Image& image, const Point& point,
                                          const Rect& fromRect, CompositingOperation operation,
                                          double fraction) noexcept {
  const View* focused = mFocused.empty() ? nullptr : mFocused.back();
  mDrawn.push_back({image.path(), point, fromRect, operation, fraction, focused});
}

}  // namespace cutline
