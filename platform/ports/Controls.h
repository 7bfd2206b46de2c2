// The simple controls of a panel. Implemented by each toolkit adapter.
#pragma once

#include <functional>
#include <string>

#include "platform/ports/View.h"

namespace cutline {

// Called with the control that the user operated. Must not throw.
using ActionHandler = std::function<void(View* sender)>;

// A view that the user can operate while it is enabled.
class Control : public virtual View {
 public:
  ~Control() override;

  virtual bool isEnabled() const noexcept = 0;
  virtual void setEnabled(bool enabled) noexcept = 0;

  // Replaces the action; an empty handler removes it. The action runs for the user's doings and
  // for performClick, never for a setter.
  virtual void setAction(ActionHandler action) noexcept = 0;
};

enum class TextColor { controlText, disabledControlText };

// The ability to take a text colour, which text fields and labels have; found with dynamic_cast by
// code that holds some control.
class TextColored {
 public:
  virtual ~TextColored();
  virtual TextColor textColor() const noexcept = 0;
  virtual void setTextColor(TextColor color) noexcept = 0;
};

// A control with a title.
class Button : public virtual Control {
 public:
  ~Button() override;

  virtual std::string title() const noexcept = 0;
  virtual void setTitle(const std::string& title) noexcept = 0;

  // performClick:  What a user's click does: changes the state, if there is one, and runs the
  // action. Does nothing while the button is disabled.
  virtual void performClick() noexcept = 0;
};

class CheckBox : public virtual Button {
 public:
  static constexpr int kOff = 0;
  static constexpr int kOn = 1;
  static constexpr int kMixed = -1;

  ~CheckBox() override;

  // 0 off, 1 on, -1 mixed. Setting runs no action.
  virtual int state() const noexcept = 0;
  virtual void setState(int state) noexcept = 0;

  // The PPD keyword whose choice the box stands for, as its interface file names it; empty when
  // it stands for none. The host uses it to hold boxes and marks together.
  virtual std::string ppdKeyword() const noexcept = 0;
  virtual void setPPDKeyword(const std::string& keyword) noexcept = 0;
};

// A line of static text.
class Label : public virtual Control, public TextColored {
 public:
  ~Label() override;
  virtual std::string stringValue() const noexcept = 0;
  virtual void setStringValue(const std::string& text) noexcept = 0;
};

// A pair of arrows that steps an integer by one.
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
