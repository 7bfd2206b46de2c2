// A text field on QtFieldEditor: its formatter and its client decide, the editor carries it out.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/ports/Formatter.h"
#include "platform/ports/TextField.h"
#include "qt/QtActions.h"
#include "qt/QtFieldEditor.h"
#include "qt/QtText.h"
#include "qt/QtView.h"

namespace cutline {

class QtTextField : public QtControlOf<TextField, QtFieldEditor>,
                    public std::enable_shared_from_this<QtTextField>,
                    private QtFieldEditor::Delegate {
 public:
  QtTextField(const Rect& frame, std::shared_ptr<QtActions> actions);
  ~QtTextField() override;

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override;
  void setFormatter(std::shared_ptr<Formatter> formatter) noexcept override;
  Formatter* formatter() const noexcept override { return mFormatter.get(); }
  void setClient(std::shared_ptr<TextFieldClient> client) noexcept override;
  void selectText(View* sender) noexcept override;
  bool superBecomeFirstResponder() noexcept override;
  bool superResignFirstResponder() noexcept override { return true; }
  void superTextDidChange(const Notification& notification) noexcept override;
  // Raises nothing: Qt has no exceptions of its own.
  void superTextDidEndEditing(const Notification& notification) noexcept override;
  void setTextDidChange(std::function<void()> handler) noexcept override;
  TextColor textColor() const noexcept override { return mTextColor.color(); }
  void setTextColor(TextColor color) noexcept override { mTextColor.setColor(widget(), color); }

 private:
  bool mayChange(const EditProposal& edit) noexcept override;
  void didChange() noexcept override;
  void didTakeFocus() noexcept override;
  void didEndEditing() noexcept override;
  void tellOfChange() noexcept;
  void correct(const std::string& text) noexcept;
  // The client, for one call, and with it the field: what the client calls may let go of the field,
  // and the client still goes on with it.
  struct ClientCall {
    explicit ClientCall(QtTextField& self);
    QtActions::Running running;
    std::shared_ptr<QtTextField> field;
    std::shared_ptr<TextFieldClient> client;
  };

  Notification notification(const char* name) const;

  std::shared_ptr<Formatter> mFormatter;
  std::shared_ptr<TextFieldClient> mClient;
  std::string mText;
  std::function<void()> mTextDidChange;
  bool mInUserEdit = false;       // the user's change is being told of
  bool mTakingFocus = false;      // the program is putting the keyboard here
  bool mGivingFocusAway = false;  // the client does not want it
  bool mEditedSinceAction = false;
  QtTextColor mTextColor;
};

}  // namespace cutline
