// A text field in memory, with a user's doings as calls.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "plain/PlainText.h"
#include "platform/Formatter.h"
#include "platform/TextField.h"
#include "platform/TextFieldClient.h"

namespace cutline {

class PlainTextField final : public PlainText<TextField> {
 public:
  using PlainText<TextField>::PlainText;

  void setFormatter(std::shared_ptr<Formatter> formatter) noexcept override;
  Formatter* formatter() const noexcept override { return mFormatter.get(); }
  void setClient(std::shared_ptr<TextFieldClient> client) noexcept override;
  void selectText(View* sender) noexcept override;
  bool superBecomeFirstResponder() noexcept override { return isEnabled(); }
  bool superResignFirstResponder() noexcept override { return true; }
  void superTextDidEndEditing(const Notification& notification) override;
  void setTextDidChange(std::function<void()> handler) noexcept override;

  // What a user does who selects the whole text and types this one: one change, reported once, and
  // the action observer is told after it. Equal text is no change, and nobody types into a field
  // that is disabled.
  void typeText(const std::string& text) noexcept;
  // Runs the action, unless the field is disabled.
  void pressReturn() noexcept;

 private:
  std::shared_ptr<Formatter> mFormatter;
  std::shared_ptr<TextFieldClient> mClient;
  std::function<void()> mTextDidChange;
};

}  // namespace cutline
