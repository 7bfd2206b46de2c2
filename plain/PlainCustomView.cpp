#include "plain/PlainCustomView.h"

namespace cutline {

PlainCustomView::PlainCustomView(const Rect& frame, CustomViewClient* client)
    : PlainView(frame), mClient(client) {}

void PlainCustomView::drawSuper(const Rect& /*dirty*/, DrawingContext& /*context*/) noexcept {}

std::string PlainCustomView::accessibilityLabel() const noexcept {
  const std::string label = PlainView::accessibilityLabel();
  return label.empty() && mClient ? mClient->accessibilityLabel() : label;
}

void PlainCustomView::draw(DrawingContext& context) noexcept {
  setNeedsDisplay(false);
  if (mClient && !isHidden()) mClient->drawRect({{}, frame().size}, context);
}

}  // namespace cutline
