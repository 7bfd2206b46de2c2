// A text field that tells observers of each change that the user makes to its text, for fields of
// an interface file whose `class` it is. The panel's number field is not one: this class keeps
// changes from the field's delegate, and the panel is the delegate that corrects what is typed
// there. The tests in tests/textinput use it as a panel's file gives it, in a window.
#pragma once

#include "bundle/format/Describable.h"
#include "platform/ports/TextField.h"

namespace cutline {

class TextField;

// Posted about the field, known by the address of its View.
inline constexpr char kTextFieldResignFirstResponderNotification[] =
    "TextFieldResignFirstResponderNotification";

class PDETextField13_v400_ final : public TextFieldClient, public Describable {
 public:
  // The field is borrowed; it owns its client.
  explicit PDETextField13_v400_(TextField& field) noexcept : mField(field) {}

  std::string description() const noexcept override {
    return describedAs("PDETextField13_v400_", this);
  }

  // sendFirstResponderNotification:  Posts when the flag is false. True says that the field still
  // has the keyboard, whatever the notification's name says, and posts nothing.
  void sendFirstResponderNotification(bool flag) noexcept;

  // Takes the keyboard as the toolkit's field does; posts nothing.
  bool becomeFirstResponder() noexcept override;
  // Ends editing as the toolkit's field does, and gives the keyboard up; posts nothing.
  void textDidEndEditing(const Notification& notification) override;
  // Post, and keep the event from the toolkit's field: no text is selected, no delegate told.
  void selectText(View* sender) noexcept override;
  void textDidChange(const Notification& notification) noexcept override;

 private:
  TextField& mField;
};

}  // namespace cutline
