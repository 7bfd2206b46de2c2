// Where a view draws itself, valid during one drawRect call. Implemented by each toolkit adapter.
#pragma once

#include "platform/Geometry.h"

namespace cutline {

class Image;
class View;

enum class CompositingOperation { copy, sourceOver };

class DrawingContext {
 public:
  DrawingContext() = default;
  DrawingContext(const DrawingContext&) = delete;
  DrawingContext& operator=(const DrawingContext&) = delete;
  virtual ~DrawingContext();

  virtual void saveGraphicsState() noexcept = 0;
  virtual void restoreGraphicsState() noexcept = 0;
  virtual void lockFocus(const View& view) noexcept = 0;
  virtual void unlockFocus(const View& view) noexcept = 0;

  // drawAtPoint:fromRect:operation:fraction:  Draws unscaled with the image's lower-left corner at
  // `point` of the focused view; an empty `fromRect` means the whole image; `fraction` is the
  // opacity from 0 to 1.
  virtual void drawAtPoint(const Image& image, const Point& point, const Rect& fromRect,
                           CompositingOperation operation, double fraction) noexcept = 0;
};

}  // namespace cutline
