// Text that the user edits: the field, what is selected in it, and a bundle's class behind it.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "platform/ports/Controls.h"

namespace cutline {

class Formatter;
struct Notification;

// A part of a text. Both members are counted in UTF-16 units.
struct TextRange {
  std::size_t location = 0;
  std::size_t length = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

// What a client is told with; the object is the field, as a view.
inline constexpr char kTextDidChange[] = "NSTextDidChangeNotification";
inline constexpr char kTextDidEndEditing[] = "NSTextDidEndEditingNotification";

// The behaviour of a text field whose class is a bundle's own: what a subclass of the toolkit's
// text field would override. The toolkit's field owns its client and calls it, on the main thread;
// the client calls the field's `super...` operations where a subclass would call its superclass.
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

// A single-line editable text field. Implemented by each toolkit adapter.
class TextField : public virtual Control, public TextColored {
 public:
  ~TextField() override;

  // UTF-8, as the field shows it. Setting a text that is shown alike changes nothing (no lost
  // selection, no lost undo). No setter reports a text change.
  virtual std::string stringValue() const noexcept = 0;
  virtual void setStringValue(const std::string& text) noexcept = 0;

  // The leading integer of the text, after blanks and an optional sign; 0 when there is none;
  // clamped to 32 bits.
  int intValue() const noexcept;

  // The formatter vets each edit of the user: typing, deleting, paste, drop, an input method's
  // commit, assistive technology. A refused edit leaves text, selection and undo history as they
  // were and reports no change; undo and redo are not vetted. It also says what is shown for a text
  // that is set, and for what the user typed when editing ends. Null removes it.
  virtual void setFormatter(std::shared_ptr<Formatter> formatter) noexcept = 0;
  virtual Formatter* formatter() const noexcept = 0;  // borrowed; null without one

  // The behaviour of a bundle's own class, which then decides what comes of the events that it is
  // told of. Null gives the toolkit's own back.
  virtual void setClient(std::shared_ptr<TextFieldClient> client) noexcept = 0;

  // selectText:  Asks the field to select its whole text, by way of its client.
  virtual void selectText(View* sender) noexcept = 0;

  // What the toolkit's own field does when it is asked to take the keyboard or give it up; true
  // when it does. Giving it up moves it nowhere: that is for whoever takes it.
  virtual bool superBecomeFirstResponder() noexcept = 0;
  virtual bool superResignFirstResponder() noexcept = 0;
  // What the toolkit's own field does when the user has changed the text: it calls the handler
  // below, and the action observer hears of it.
  virtual void superTextDidChange(const Notification& notification) noexcept = 0;
  // What the toolkit's own field does when editing ends: it shows what was typed as the formatter
  // does and runs the action. May raise the toolkit's exceptions.
  virtual void superTextDidEndEditing(const Notification& notification) = 0;

  // Called after every change that the user makes to the text, unless the field's client keeps the
  // change to itself. Must not throw.
  virtual void setTextDidChange(std::function<void()> handler) noexcept = 0;
};

// The selection of a text that replaces what the user has just made of the field's: the caret keeps
// its distance to the end, so that typing goes on where it was, and a text that the user had
// emptied is selected whole, so that the next key replaces it. Lengths and caret in UTF-16 units.
TextRange selectionAfterCorrection(std::size_t editedLength, std::size_t caret,
                                   std::size_t correctedLength) noexcept;

}  // namespace cutline
