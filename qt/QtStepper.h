// A stepper: the arrows of a QSpinBox without its text.
#pragma once

#include <QSpinBox>
#include <memory>

#include "platform/ports/Controls.h"
#include "qt/QtView.h"

namespace cutline {

class QtStepper : public QtControlOf<Stepper, QSpinBox> {
 public:
  QtStepper(const Rect& frame, std::shared_ptr<QtActions> actions);

  int minValue() const noexcept override { return mMinValue; }
  int maxValue() const noexcept override { return mMaxValue; }
  void setRange(int minValue, int maxValue) noexcept override;
  int intValue() const noexcept override { return mValue; }
  void setIntValue(int value) noexcept override;

 private:
  void userDidStep(int value) noexcept;

  int mMinValue = 0;
  int mMaxValue = 100;
  int mValue = 0;
};

}  // namespace cutline
