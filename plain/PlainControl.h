// What every control in memory shares: the enabled flag, the action and its observer.
#pragma once

#include <functional>
#include <memory>

#include "plain/PlainView.h"
#include "platform/ports/Controls.h"

namespace cutline {

class ActionObserver;

// Where the controls of a toolkit find its observer; shared, because a control may outlive the
// toolkit that made it.
struct PlainActions {
  ActionObserver* observer = nullptr;
};

class PlainControl : public virtual Control, public PlainView {
 public:
  PlainControl(const Rect& frame, std::shared_ptr<const PlainActions> actions);

  bool isEnabled() const noexcept override { return mEnabled; }
  void setEnabled(bool enabled) noexcept override { mEnabled = enabled; }
  void setAction(ActionHandler action) noexcept override;

 protected:
  // Runs the action, if there is one, and tells the observer.
  void sendAction() noexcept;
  // Runs what answers a user's doing and then tells the observer. The handler may replace itself
  // and may let the control go; the observer isn't told of a control that is gone.
  void perform(std::function<void()> handler) noexcept;
  // Expires with the control, for one whose handlers may let it go.
  std::weak_ptr<const bool> existence() const noexcept { return mExists; }

 private:
  std::shared_ptr<const PlainActions> mActions;
  std::shared_ptr<const bool> mExists = std::make_shared<const bool>(true);
  ActionHandler mAction;
  bool mEnabled = true;
};

}  // namespace cutline
