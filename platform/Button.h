// A control with a title. Implemented by each toolkit adapter.
#pragma once

#include <string>

#include "platform/Control.h"

namespace cutline {

class Button : public virtual Control {
 public:
  ~Button() override;

  virtual std::string title() const noexcept = 0;
  virtual void setTitle(const std::string& title) noexcept = 0;

  // performClick:  What a user's click does: changes the state, if there is one, and runs the
  // action. Does nothing while the button is disabled.
  virtual void performClick() noexcept = 0;
};

}  // namespace cutline
