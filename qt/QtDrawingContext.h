// The drawing context of a view that paints itself, on the view's QPainter.
#pragma once

#include <vector>

#include "platform/ports/Drawing.h"

class QPainter;

namespace cutline {

class QtDrawingContext : public DrawingContext {
 public:
  // `painter` is borrowed and paints on the widget of `view`; `flipped` says that the client's
  // coordinates grow downwards.
  QtDrawingContext(QPainter& painter, const View& view, bool flipped) noexcept;
  // What was left saved or locked is restored.
  ~QtDrawingContext() override;

  void saveGraphicsState() noexcept override;
  void restoreGraphicsState() noexcept override;
  void lockFocus(const View& view) noexcept override;
  void unlockFocus(const View& view) noexcept override;
  void drawAtPoint(const Image& image, const Point& point, const Rect& fromRect,
                   CompositingOperation operation, double fraction) noexcept override;

 private:
  QPainter& mPainter;
  bool mFlipped;
  int mSaved = 0;
  std::vector<const View*> mFocused;  // the drawn view first
};

}  // namespace cutline
