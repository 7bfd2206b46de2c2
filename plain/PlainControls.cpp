#include "plain/PlainControls.h"

#include <algorithm>
#include <cstdint>
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

void PlainButton::performClick() noexcept {
  if (!isEnabled()) return;
  advanceState();
  sendAction();
}

void PlainCheckBox::setState(int state) noexcept {
  // As toolkits do: any other number stands for the state that has its sign.
  mState = state < 0 ? kMixed : state > 0 ? kOn : kOff;
}

void PlainStepper::setRange(int minValue, int maxValue) noexcept {
  mMinValue = minValue;
  mMaxValue = std::max(minValue, maxValue);
  setIntValue(mValue);
}

void PlainStepper::setIntValue(int value) noexcept {
  mValue = std::clamp(value, mMinValue, mMaxValue);
}

void PlainStepper::performStep(int step) noexcept {
  const int before = mValue;
  if (!isEnabled()) return;
  const std::int64_t target = std::int64_t{before} + step;  // may lie beyond every int
  mValue = static_cast<int>(std::clamp<std::int64_t>(target, mMinValue, mMaxValue));
  if (mValue != before) sendAction();
}

}  // namespace cutline
