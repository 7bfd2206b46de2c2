#include "plain/PlainTextField.h"

#include <utility>

namespace cutline {

void PlainTextField::setFormatter(std::shared_ptr<Formatter> formatter) noexcept {
  mFormatter = std::move(formatter);
}

void PlainTextField::setClient(std::shared_ptr<TextFieldClient> client) noexcept {
  mClient = std::move(client);
}

void PlainTextField::selectText(View* sender) noexcept {
  if (mClient) mClient->selectText(sender);
}

void PlainTextField::superTextDidEndEditing(const Notification&) {}

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
