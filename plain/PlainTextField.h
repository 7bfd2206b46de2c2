// A text field in memory, with a user's doings as calls.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "plain/PlainControls.h"
#include "platform/ports/Formatter.h"
#include "platform/ports/TextField.h"

namespace cutline {

class PlainTextField final : public PlainText<TextField>,
                             public std::enable_shared_from_this<PlainTextField> {
 public:
  using PlainText<TextField>::PlainText;

  // Puts the caret behind the text, unless the text is shown alike already.
  void setStringValue(const std::string& text) noexcept override;
  void setFormatter(std::shared_ptr<Formatter> formatter) noexcept override;
  Formatter* formatter() const noexcept override { return mFormatter.get(); }
  void setClient(std::shared_ptr<TextFieldClient> client) noexcept override;
  void selectText(View* sender) noexcept override;
  bool superBecomeFirstResponder() noexcept override;
  bool superResignFirstResponder() noexcept override { return true; }
  void superTextDidChange(const Notification& notification) noexcept override;
  void superTextDidEndEditing(const Notification& notification) override;
  void setTextDidChange(std::function<void()> handler) noexcept override;

  // The selection; its end is where the user types. Setting one takes what lies within the text.
  TextRange selectedRange() const noexcept { return mSelection; }
  void setSelectedRange(TextRange range) noexcept;

  // Puts the keyboard into the field; false when it is disabled or doesn't take it. Everything that
  // a user does to the text does this first, and nothing more when the answer is no.
  bool focus() noexcept;
  // Takes the keyboard away, which ends editing. Passes on what the client raises.
  void leave();

  // What a user does who selects the whole text and types this one: one change, reported once, and
  // the action observer is told after it. Equal text is no change, and neither is one that the
  // formatter refuses: text and selection stay.
  void typeText(const std::string& text) noexcept;
  // Types at the selection, one character after the other; each is a change of its own.
  void type(const std::string& text) noexcept;
  // Puts the text in the place of the selection, as one change.
  void paste(const std::string& text) noexcept;
  // Each takes the selection away, or the character beside the caret where there is none.
  void deleteBackward() noexcept;
  void deleteForward() noexcept;
  // Ends editing, which runs the action when the text was changed since the last time. The keyboard
  // stays. Passes on what the client raises.
  void pressReturn();

 private:
  void show(const std::string& text, TextRange selection) noexcept;
  void showCorrected(const std::string& text) noexcept;
  void edit(TextRange madeAt, TextRange replaced, const std::u16string& with) noexcept;
  bool mayEdit(const std::u16string& before, TextRange madeAt, const std::u16string& after,
               TextRange selection) noexcept;
  void tellOfChange() noexcept;
  void endEditing();

  // The client, for one call, and with it the field: what the client calls may let go of the field,
  // and the client still goes on with it.
  struct ClientCall {
    std::shared_ptr<PlainTextField> field;
    std::shared_ptr<TextFieldClient> client;
  };
  ClientCall clientCall() noexcept { return {weak_from_this().lock(), mClient}; }

  Notification notification(const char* name) const;

  std::shared_ptr<Formatter> mFormatter;
  std::shared_ptr<TextFieldClient> mClient;
  std::function<void()> mTextDidChange;
  TextRange mSelection;
  bool mFocused = false;
  bool mInUserEdit = false;  // the user's change is being told of
  bool mEditedSinceAction = false;
};

}  // namespace cutline
