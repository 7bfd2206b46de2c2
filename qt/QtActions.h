// Runs the actions of a toolkit's controls and tells the observer afterwards. Shared by the toolkit
// and all views that it made.
#pragma once

#include <functional>
#include <memory>

#include "platform/ports/Controls.h"

namespace cutline {

class ActionObserver;
class QtViewCore;

class QtActions : public std::enable_shared_from_this<QtActions> {
 public:
  // Borrowed; null removes it.
  void setObserver(ActionObserver* observer) noexcept { mObserver = observer; }

  // Runs the sender's action to its end, then tells the observer. An empty action does neither. The
  // action may replace itself and may let go of the sender; then the observer is not told.
  void run(QtViewCore& sender, const ActionHandler& action) noexcept;
  // The same for what a text field calls while the user types.
  void run(QtViewCore& sender, const std::function<void()>& handler) noexcept;

  // While one exists no action runs: Qt takes the focus from a widget that is hidden, disabled or
  // taken away, which ends editing, but that was not the user's doing.
  class Silence {
   public:
    explicit Silence(QtActions& actions) noexcept : mActions(actions) { ++mActions.mSilenced; }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { --mActions.mSilenced; }

   private:
    QtActions& mActions;
  };

  // While one exists actions are running: for whatever else of a bundle's is called out of a native
  // event, and may let go of the control that it is called for.
  class Running {
   public:
    explicit Running(QtActions& actions) noexcept : mActions(actions.shared_from_this()) {
      ++mActions->mDepth;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() { --mActions->mDepth; }

   private:
    std::shared_ptr<QtActions> mActions;
  };

  // While this is true a native event may still be on its way through a widget, so widgets must
  // not be deleted at once.
  bool areRunning() const noexcept { return mDepth > 0; }

 private:
  ActionObserver* mObserver = nullptr;
  int mDepth = 0;
  int mSilenced = 0;
};

}  // namespace cutline
