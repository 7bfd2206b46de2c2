// A text field in memory, with a user's doings as calls.
#pragma once

#include <functional>
#include <string>

#include "plain/PlainText.h"
#include "platform/TextField.h"

namespace cutline {

class PlainTextField final : public PlainText<TextField> {
 public:
  using PlainText<TextField>::PlainText;

  void setTextDidChange(std::function<void()> handler) noexcept override;

  // What a user does who selects the whole text and types this one: one change, reported once, and
  // the action observer is told after it. Equal text is no change, and nobody types into a field
  // that is disabled.
  void typeText(const std::string& text) noexcept;
  // Runs the action, unless the field is disabled.
  void pressReturn() noexcept;

 private:
  std::function<void()> mTextDidChange;
};

}  // namespace cutline
