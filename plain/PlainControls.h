// The simple controls in memory, with what every control shares.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "plain/PlainView.h"
#include "platform/ports/Controls.h"

namespace cutline {

class ActionObserver;

// Where the controls of a toolkit find its observer; shared, because a control may outlive the
// toolkit that made it.
struct PlainActions {
  ActionObserver* observer = nullptr;
};

// What every control shares: the enabled flag, the action and its observer.
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

// The text and its colour; `Port` is Label or TextField.
template <typename Port>
class PlainText : public virtual Port, public PlainControl {
 public:
  using PlainControl::PlainControl;

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override { mText = text; }
  TextColor textColor() const noexcept override { return mColor; }
  void setTextColor(TextColor color) noexcept override { mColor = color; }

 private:
  std::string mText;
  TextColor mColor = TextColor::controlText;
};

class PlainLabel final : public PlainText<Label> {
 public:
  using PlainText<Label>::PlainText;
};

class PlainButton : public virtual Button, public PlainControl {
 public:
  using PlainControl::PlainControl;

  std::string title() const noexcept override { return mTitle; }
  void setTitle(const std::string& title) noexcept override { mTitle = title; }
  void performClick() noexcept override;

 protected:
  // What a click changes before the action runs.
  virtual void advanceState() noexcept {}

 private:
  std::string mTitle;
};

class PlainCheckBox final : public virtual CheckBox, public PlainButton {
 public:
  using PlainButton::PlainButton;

  int state() const noexcept override { return mState; }
  void setState(int state) noexcept override;
  std::string ppdKeyword() const noexcept override { return mPPDKeyword; }
  void setPPDKeyword(const std::string& keyword) noexcept override { mPPDKeyword = keyword; }

 protected:
  void advanceState() noexcept override { mState = mState == kOn ? kOff : kOn; }

 private:
  int mState = kOff;
  std::string mPPDKeyword;
};

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
