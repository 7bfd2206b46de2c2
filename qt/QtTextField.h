// A text field on QLineEdit.
#pragma once

#include <QLineEdit>
#include <functional>
#include <memory>
#include <string>

#include "platform/Formatter.h"
#include "platform/TextField.h"
#include "platform/TextFieldClient.h"
#include "qt/QtTextColor.h"
#include "qt/QtViewOf.h"

namespace cutline {

class QtTextField : public QtControlOf<TextField, QLineEdit> {
 public:
  QtTextField(const Rect& frame, std::shared_ptr<QtActions> actions);

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override;
  void setFormatter(std::shared_ptr<Formatter> formatter) noexcept override;
  Formatter* formatter() const noexcept override { return mFormatter.get(); }
  void setClient(std::shared_ptr<TextFieldClient> client) noexcept override;
  void selectText(View* sender) noexcept override;
  bool superBecomeFirstResponder() noexcept override;
  bool superResignFirstResponder() noexcept override;
  void superTextDidEndEditing(const Notification& notification) override;
  void setTextDidChange(std::function<void()> handler) noexcept override;
  TextColor textColor() const noexcept override { return mTextColor.color(); }
  void setTextColor(TextColor color) noexcept override { mTextColor.setColor(widget(), color); }

 private:
  void userDidEdit() noexcept;
  void userDidEndEditing() noexcept;

  std::shared_ptr<Formatter> mFormatter;
  std::shared_ptr<TextFieldClient> mClient;
  std::string mText;
  std::function<void()> mTextDidChange;
  bool mInUserEdit = false;  // the change handler of an edit is running
  bool mEditedSinceAction = false;
  QtTextColor mTextColor;
};

}  // namespace cutline
