#include "plain/PlainStepper.h"

#include <algorithm>

namespace cutline {

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
  setIntValue(mValue + step);
  if (mValue != before) sendAction();
}

}  // namespace cutline
