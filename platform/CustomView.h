// A native view whose drawing is somebody else's. The view is implemented by each toolkit adapter,
// the client by the class that gives it its behaviour.
#pragma once

#include <string>

#include "platform/View.h"

namespace cutline {

class DrawingContext;

// What the native view asks of its behaviour.
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
