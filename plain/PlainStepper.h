// A stepper in memory, with a user's click as a call.
#pragma once

#include "plain/PlainControl.h"
#include "platform/ports/Controls.h"

namespace cutline {

class PlainStepper final : public virtual Stepper, public PlainControl {
 public:
  using PlainControl::PlainControl;

  int minValue() const noexcept override { return mMinValue; }
  int maxValue() const noexcept override { return mMaxValue; }
  void setRange(int minValue, int maxValue) noexcept override;
  int intValue() const noexcept override { return mValue; }
  void setIntValue(int value) noexcept override;

  // A click on the upper arrow (+1) or the lower one (-1): steps and runs the action, but does
  // neither at the end of the range or while the stepper is disabled.
  void performStep(int step) noexcept;

 private:
  int mMinValue = 0;
  int mMaxValue = 100;
  int mValue = 0;
};

}  // namespace cutline
