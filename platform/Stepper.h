// A pair of arrows that steps an integer by one. Implemented by each toolkit adapter.
#pragma once

#include "platform/Control.h"

namespace cutline {

class Stepper : public virtual Control {
 public:
  ~Stepper() override;

  // Both bounds belong to the range; setting a value outside it gives the nearest bound.
  virtual int minValue() const noexcept = 0;
  virtual int maxValue() const noexcept = 0;
  virtual void setRange(int minValue, int maxValue) noexcept = 0;

  virtual int intValue() const noexcept = 0;
  virtual void setIntValue(int value) noexcept = 0;
};

}  // namespace cutline
