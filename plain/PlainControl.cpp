#include "plain/PlainControl.h"

#include <utility>

#include "platform/ports/Toolkit.h"

namespace cutline {

PlainControl::PlainControl(const Rect& frame, std::shared_ptr<const PlainActions> actions)
    : PlainView(frame), mActions(std::move(actions)) {}

void PlainControl::setAction(ActionHandler action) noexcept { mAction = std::move(action); }

void PlainControl::sendAction() noexcept {
  if (!mAction) return;
  perform([this, action = mAction] { action(this); });
}

void PlainControl::perform(std::function<void()> handler) noexcept {
  if (!handler) return;
  const std::weak_ptr<const bool> exists = existence();
  handler();
  if (!exists.expired() && mActions->observer) mActions->observer->actionDidFinish(*this);
}

}  // namespace cutline
