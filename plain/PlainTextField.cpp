#include "plain/PlainTextField.h"

#include <utility>

namespace cutline {

void PlainTextField::setTextDidChange(std::function<void()> handler) noexcept {
  mTextDidChange = std::move(handler);
}

void PlainTextField::typeText(const std::string& text) noexcept {
  if (!isEnabled() || text == stringValue()) return;
  setStringValue(text);
  perform(mTextDidChange);
}

void PlainTextField::pressReturn() noexcept {
  if (isEnabled()) sendAction();
}

}  // namespace cutline
