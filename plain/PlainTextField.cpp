#include "plain/PlainTextField.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Utf16.h"
#include "platform/ports/NotificationCenter.h"

namespace cutline {
namespace {

// Units of the character that ends at `position`; 0 at the start of the text.
std::size_t lengthBefore(const std::u16string& text, std::size_t position) {
  std::size_t start = position;
  if (start > 0) U16_BACK_1(text, 0, start);
  return position - start;
}

// Units of the character that begins at `position`; 0 at the end of the text.
std::size_t lengthAfter(const std::u16string& text, std::size_t position) {
  std::size_t end = position;
  if (end < text.size()) U16_FWD_1(text, end, text.size());
  return end - position;
}

}  // namespace

void PlainTextField::setStringValue(const std::string& text) noexcept {
  const std::string shown = displayedText(mFormatter.get(), text);
  if (shown == stringValue()) return;
  if (mInUserEdit) return showCorrected(shown);
  show(shown, {utf16FromUtf8(shown).size(), 0});
}

void PlainTextField::show(const std::string& text, TextRange selection) noexcept {
  PlainText<TextField>::setStringValue(text);
  mSelection = selection;
}

void PlainTextField::showCorrected(const std::string& text) noexcept {
  const std::size_t caret = mSelection.location + mSelection.length;
  const std::size_t editedLength = utf16FromUtf8(stringValue()).size();
  show(text, selectionAfterCorrection(editedLength, caret, utf16FromUtf8(text).size()));
}

void PlainTextField::setFormatter(std::shared_ptr<Formatter> formatter) noexcept {
  mFormatter = std::move(formatter);
}

void PlainTextField::setClient(std::shared_ptr<TextFieldClient> client) noexcept {
  mClient = std::move(client);
}

void PlainTextField::selectText(View* sender) noexcept {
  if (mClient) return clientCall().client->selectText(sender);
  mSelection = {0, utf16FromUtf8(stringValue()).size()};
}

bool PlainTextField::superBecomeFirstResponder() noexcept {
  mFocused = mFocused || isEnabled();
  return mFocused;
}

void PlainTextField::superTextDidChange(const Notification& /*notification*/) noexcept {
  perform(mTextDidChange);
}

void PlainTextField::superTextDidEndEditing(const Notification& /*notification*/) {
  if (!std::exchange(mEditedSinceAction, false)) return;
  const std::string shown = displayedText(mFormatter.get(), stringValue());
  if (shown != stringValue()) showCorrected(shown);
  sendAction();
}

void PlainTextField::setTextDidChange(std::function<void()> handler) noexcept {
  mTextDidChange = std::move(handler);
}

void PlainTextField::setSelectedRange(TextRange range) noexcept {
  const std::size_t size = utf16FromUtf8(stringValue()).size();
  mSelection.location = std::min(range.location, size);
  mSelection.length = std::min(range.length, size - mSelection.location);
}

bool PlainTextField::focus() noexcept {
  if (!isEnabled()) return false;
  if (mFocused) return true;
  return mClient ? clientCall().client->becomeFirstResponder() : superBecomeFirstResponder();
}

void PlainTextField::leave() {
  if (std::exchange(mFocused, false)) endEditing();
}

void PlainTextField::typeText(const std::string& text) noexcept {
  const TextRange whole{0, utf16FromUtf8(stringValue()).size()};
  edit(whole, whole, utf16FromUtf8(text));
}

void PlainTextField::type(const std::string& text) noexcept {
  const std::weak_ptr<const bool> exists = existence();
  const std::u16string units = utf16FromUtf8(text);
  for (std::size_t at = 0; at < units.size() && !exists.expired();) {
    const std::size_t length = lengthAfter(units, at);
    edit(mSelection, mSelection, units.substr(at, length));
    at += length;
  }
}

void PlainTextField::paste(const std::string& text) noexcept {
  edit(mSelection, mSelection, utf16FromUtf8(text));
}

void PlainTextField::deleteBackward() noexcept {
  TextRange replaced = mSelection;
  if (replaced.length == 0) {
    replaced.length = lengthBefore(utf16FromUtf8(stringValue()), replaced.location);
    replaced.location -= replaced.length;
  }
  edit(mSelection, replaced, {});
}

void PlainTextField::deleteForward() noexcept {
  TextRange replaced = mSelection;
  if (replaced.length == 0) {
    replaced.length = lengthAfter(utf16FromUtf8(stringValue()), replaced.location);
  }
  edit(mSelection, replaced, {});
}

void PlainTextField::pressReturn() {
  if (focus()) endEditing();
}

void PlainTextField::edit(TextRange madeAt, TextRange replaced,
                          const std::u16string& with) noexcept {
  const std::weak_ptr<const bool> exists = existence();
  if (!focus() || exists.expired()) return;
  const std::u16string before = utf16FromUtf8(stringValue());
  std::u16string after = before;
  after.replace(replaced.location, replaced.length, with);
  const TextRange selection{replaced.location + with.size(), 0};
  if (after == before) {
    // No change, but what was typed again is no longer selected: the next key goes behind it.
    mSelection = selection;
    return;
  }
  if (!mayEdit(before, madeAt, after, selection) || exists.expired()) return;
  // A text that was set meanwhile stands.
  if (utf16FromUtf8(stringValue()) != before) return;
  show(utf8FromUtf16(after), selection);
  tellOfChange();
}

bool PlainTextField::mayEdit(const std::u16string& before, TextRange madeAt,
                             const std::u16string& after, TextRange selection) noexcept {
  const auto formatter = mFormatter;
  if (!formatter) return true;
  std::optional<std::u16string> proposed = after;
  std::u16string error;
  return formatter->isPartialStringValid(&proposed, &selection, before, madeAt, &error);
}

void PlainTextField::tellOfChange() noexcept {
  const std::weak_ptr<const bool> exists = existence();
  mEditedSinceAction = true;
  mInUserEdit = true;
  if (mClient) {
    clientCall().client->textDidChange(notification(kTextDidChange));
  } else {
    superTextDidChange(notification(kTextDidChange));
  }
  if (!exists.expired()) mInUserEdit = false;
}

void PlainTextField::endEditing() {
  if (mClient) return clientCall().client->textDidEndEditing(notification(kTextDidEndEditing));
  superTextDidEndEditing(notification(kTextDidEndEditing));
}

Notification PlainTextField::notification(const char* name) const {
  return {name, static_cast<const void*>(static_cast<const View*>(this))};
}

}  // namespace cutline
