#include "plain/PlainView.h"

#include <algorithm>
#include <utility>

namespace cutline {

PlainView::~PlainView() {
  // A subview that somebody else holds lives on, in no tree.
  for (const auto& subview : mSubviews) dynamic_cast<PlainView&>(*subview).mSuperview = nullptr;
}

void PlainView::setFrame(const Rect& frame) noexcept {
  const double growth = frame.size.height - mFrame.size.height;
  mFrame = frame;
  if (growth != 0) moveSubviews(growth);
}

void PlainView::moveSubviews(double growth) noexcept {
  for (const auto& subview : mSubviews) {
    if (subview->autoresizing() != Autoresizing::minYMargin) continue;
    const Point origin = subview->frame().origin;
    subview->setFrameOrigin({origin.x, origin.y + growth});
  }
}

void PlainView::setAutoresizing(Autoresizing autoresizing) noexcept {
  mAutoresizing = autoresizing;
}

void PlainView::setAccessibilityLabel(const std::string& label) noexcept {
  mAccessibilityLabel = label;
}

bool PlainView::adopt(const std::shared_ptr<View>& subview) noexcept {
  auto* plain = dynamic_cast<PlainView*>(subview.get());
  if (!plain) return false;
  for (const PlainView* above = this; above; above = above->mSuperview) {
    if (above == plain) return false;  // a view inside itself would own itself
  }
  if (plain->mSuperview) plain->mSuperview->forget(plain);
  plain->mSuperview = this;
  return true;
}

void PlainView::forget(const View* subview) noexcept {
  std::erase_if(mSubviews, [&](const auto& held) { return held.get() == subview; });
}

void PlainView::addSubview(std::shared_ptr<View> subview) noexcept {
  if (adopt(subview)) mSubviews.push_back(std::move(subview));
}

void PlainView::replaceSubview(View* old, std::shared_ptr<View> with) noexcept {
  const auto isOld = [&](const auto& held) { return held.get() == old; };
  if (std::none_of(mSubviews.begin(), mSubviews.end(), isOld) || with.get() == old) return;
  if (!adopt(with)) return;
  // Looked for only now: adopting may have taken a subview away before it.
  const auto place = std::find_if(mSubviews.begin(), mSubviews.end(), isOld);
  dynamic_cast<PlainView&>(*old).mSuperview = nullptr;
  *place = std::move(with);
}

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
