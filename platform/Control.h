// A view that the user can operate while it is enabled. Implemented by each toolkit adapter.
#pragma once

#include <functional>

#include "platform/View.h"

namespace cutline {

// Called with the control that the user operated. Must not throw.
using ActionHandler = std::function<void(View* sender)>;

class Control : public virtual View {
 public:
  ~Control() override;

  virtual bool isEnabled() const noexcept = 0;
  virtual void setEnabled(bool enabled) noexcept = 0;

  // Replaces the action; an empty handler removes it. The action runs for the user's doings and
  // for performClick, never for a setter.
  virtual void setAction(ActionHandler action) noexcept = 0;
};

}  // namespace cutline
