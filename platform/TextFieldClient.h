// The behaviour of a text field whose class is a bundle's own: what a subclass of the toolkit's
// text field would override. The toolkit's field owns its client and calls it, on the main thread;
// the client calls the field's `super...` operations where a subclass would call its superclass.
#pragma once

namespace cutline {

class View;
struct Notification;

// What a client is told with; the object is the field, as a view.
inline constexpr char kTextDidChange[] = "NSTextDidChangeNotification";
inline constexpr char kTextDidEndEditing[] = "NSTextDidEndEditingNotification";

class TextFieldClient {
 public:
  TextFieldClient() = default;
  TextFieldClient(const TextFieldClient&) = delete;
  TextFieldClient& operator=(const TextFieldClient&) = delete;
  virtual ~TextFieldClient();

  // The field takes the keyboard, by the user's doing or by the program's; false when it is not to.
  virtual bool becomeFirstResponder() noexcept = 0;
  // textDidEndEditing:  Editing has ended: by Return, or because the keyboard has left the field.
  // Lets an exception of the toolkit's own pass unchanged; it has none of its own.
  virtual void textDidEndEditing(const Notification& notification) = 0;
  // selectText:  The field is asked to select its whole text. The sender is borrowed and may be
  // null.
  virtual void selectText(View* sender) noexcept = 0;
  // textDidChange:  The user has changed the text; undoing and redoing are changes too.
  virtual void textDidChange(const Notification& notification) noexcept = 0;
};

}  // namespace cutline
