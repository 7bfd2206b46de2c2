#include "qt/QtCustomView.h"

#include <utility>

namespace cutline {

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
