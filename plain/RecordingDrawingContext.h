// A drawing context that keeps what was drawn and looks whether calls come in pairs.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/Drawing.h"

namespace cutline {

// One drawAtPoint call.
struct DrawnImage {
  std::string path;  // the picture's file
  Point point;
  Rect fromRect;
  CompositingOperation operation = CompositingOperation::copy;
  double fraction = 0;
  const View* focusedView = nullptr;  // null when it was drawn without a focused view
};

class RecordingDrawingContext final : public DrawingContext {
 public:
  void saveGraphicsState() noexcept override;
  void restoreGraphicsState() noexcept override;
  void lockFocus(const View& view) noexcept override;
  void unlockFocus(const View& view) noexcept override;
  void drawAtPoint(const Image& image, const Point& point, const Rect& fromRect,
                   CompositingOperation operation, double fraction) noexcept override;

  const std::vector<DrawnImage>& drawnImages() const noexcept { return mDrawn; }
  // Whether every save has had its restore and every lock the unlock of the same view, innermost
  // first.
  bool isBalanced() const noexcept { return !mMismatched && mSaved == 0 && mFocused.empty(); }

 private:
  std::vector<DrawnImage> mDrawn;
  std::vector<const View*> mFocused;
  int mSaved = 0;
  bool mMismatched = false;
};

}  // namespace cutline
