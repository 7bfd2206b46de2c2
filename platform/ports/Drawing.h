// Pictures, what they are drawn on, and the views that a bundle draws itself.
#pragma once

#include <string>

#include "platform/ports/Geometry.h"
#include "platform/ports/View.h"

namespace cutline {

// A picture that a toolkit can draw. Implemented by each toolkit adapter.
class Image {
 public:
  Image() = default;
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;
  virtual ~Image();

  virtual Size size() const noexcept = 0;         // in points
  virtual std::string path() const noexcept = 0;  // the file it was made from
};

enum class CompositingOperation { copy, sourceOver };

// Where a view draws itself, valid during one drawRect call. Implemented by each toolkit adapter.
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

// The behaviour of a native view whose drawing is not the toolkit's own.
class CustomViewClient {
 public:
  virtual ~CustomViewClient();
  // True when the client's own coordinates grow downwards.
  virtual bool isFlipped() const noexcept = 0;
  // drawRect:  `dirty` is in the view's own coordinates.
  virtual void drawRect(const Rect& dirty, DrawingContext& context) noexcept = 0;
  // What the drawing shows, in words (UTF-8), for those who cannot see it; empty when it has
  // nothing to say. Asked anew whenever it is needed: the drawing may have changed.
  virtual std::string accessibilityLabel() const noexcept { return {}; }
};

// A native view that leaves its drawing to a client. Implemented by each toolkit adapter.
class CustomView : public virtual View {
 public:
  ~CustomView() override;
  // The client is borrowed; null detaches it, after which the view draws nothing. A client
  // detaches itself before it goes.
  virtual void setClient(CustomViewClient* client) noexcept = 0;
  // What the toolkit's own view class draws; the client calls it where a subclass would call its
  // superclass.
  virtual void drawSuper(const Rect& dirty, DrawingContext& context) noexcept = 0;
};

}  // namespace cutline
