// A view in memory that has its client draw when it is told to.
#pragma once

#include <string>

#include "plain/PlainView.h"
#include "platform/ports/Drawing.h"

namespace cutline {

class PlainCustomView final : public virtual CustomView, public PlainView {
 public:
  PlainCustomView(const Rect& frame, CustomViewClient* client);

  void setClient(CustomViewClient* client) noexcept override { mClient = client; }
  // The view class in memory has nothing of its own to draw.
  void drawSuper(const Rect& dirty, DrawingContext& context) noexcept override;

  // The label that was set, or else what the client says of its drawing.
  std::string accessibilityLabel() const noexcept override;

  // Has the client draw the whole view, unless the view is hidden.
  void draw(DrawingContext& context) noexcept;

 private:
  CustomViewClient* mClient;
};

}  // namespace cutline
