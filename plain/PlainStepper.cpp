#include "plain/PlainStepper.h"

#include <algorithm>
#include <cstdint>

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
  const std::int64_t target = std::int64_t{before} + step;  // may lie beyond every int
  mValue = static_cast<int>(std::clamp<std::int64_t>(target, mMinValue, mMaxValue));
  if (mValue != before) sendAction();
}

}  // namespace cutline
