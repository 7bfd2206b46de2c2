#include "qt/QtTextField.h"

#include <QPointer>
#include <optional>
#include <utility>

#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "platform/ports/System.h"
#include "qt/QtText.h"

namespace cutline {

QtTextField::QtTextField(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new QtFieldEditor, frame, std::move(actions)),
      mTextColor(*widget(), QPalette::Text) {
  widget()->setDelegate(this);
}

QtTextField::~QtTextField() {
  if (widget()) widget()->setDelegate(nullptr);
}

void QtTextField::setStringValue(const std::string& text) noexcept {
  const std::string shown = displayedText(mFormatter.get(), text);
  if (shown == mText) return;
  if (mInUserEdit) return correct(shown);
  mText = shown;
  if (widget()) widget()->showText(toQString(mText));
}

// Replaces what the user has just made of the text.
void QtTextField::correct(const std::string& text) noexcept {
  mText = text;
  if (widget()) widget()->correctText(toQString(mText));
}

void QtTextField::setFormatter(std::shared_ptr<Formatter> formatter) noexcept {
  mFormatter = std::move(formatter);
}

void QtTextField::setClient(std::shared_ptr<TextFieldClient> client) noexcept {
  mClient = std::move(client);
}

void QtTextField::selectText(View* sender) noexcept {
  if (mClient) return ClientCall(*this).client->selectText(sender);
  if (widget()) widget()->selectAll();
}

bool QtTextField::superBecomeFirstResponder() noexcept {
  if (!widget() || !isEnabled()) return false;
  if (widget()->hasFocus()) return true;
  const QPointer<QObject> alive = core().connectionContext();
  mTakingFocus = true;
  widget()->setFocus();
  if (alive) mTakingFocus = false;
  return true;
}

void QtTextField::superTextDidChange(const Notification& /*notification*/) noexcept {
  core().actions().run(core(), mTextDidChange);
}

// Return ends editing, and so does leaving the field afterwards: one action for the two.
void QtTextField::superTextDidEndEditing(const Notification& /*notification*/) noexcept {
  if (!std::exchange(mEditedSinceAction, false)) return;
  const std::string shown = displayedText(mFormatter.get(), mText);
  if (shown != mText) correct(shown);
  runAction();
}

void QtTextField::setTextDidChange(std::function<void()> handler) noexcept {
  mTextDidChange = std::move(handler);
}

// Through assistive technology Qt 6.4.2 changes the text of a greyed line, too.
bool QtTextField::mayChange(const EditProposal& edit) noexcept {
  if (!widget()->isEnabled()) return false;
  const auto formatter = mFormatter;
  if (!formatter) return true;
  const QtActions::Running running(core().actions());
  std::optional<std::u16string> proposed = edit.after.toStdU16String();
  TextRange selection = edit.selection;
  std::u16string error;
  return formatter->isPartialStringValid(&proposed, &selection, edit.before.toStdU16String(),
                                         edit.madeAt, &error);
}

void QtTextField::didChange() noexcept {
  const QPointer<QObject> alive = core().connectionContext();
  mText = toUtf8(widget()->settledText());
  mEditedSinceAction = true;
  mInUserEdit = true;
  tellOfChange();
  if (alive) mInUserEdit = false;
}

void QtTextField::tellOfChange() noexcept {
  if (!mClient) return superTextDidChange(notification(kTextDidChange));
  const ClientCall call(*this);
  call.client->textDidChange(notification(kTextDidChange));
}

// Qt (6.4.2) asks nobody before it puts the keyboard here: a client that doesn't want it can only
// give it away again.
void QtTextField::didTakeFocus() noexcept {
  if (mTakingFocus || !mClient) return;
  const ClientCall call(*this);
  if (call.client->becomeFirstResponder() || !widget()) return;
  mGivingFocusAway = true;
  widget()->clearFocus();
  mGivingFocusAway = false;
}

// No exception may reach Qt's event loop, and nobody behind it could handle one: the log hears of
// it, and the field stays as it is.
void QtTextField::didEndEditing() noexcept {
  if (mGivingFocusAway) return;
  if (!mClient) return superTextDidEndEditing(notification(kTextDidEndEditing));
  const ClientCall call(*this);
  try {
    call.client->textDidEndEditing(notification(kTextDidEndEditing));
  } catch (...) {
    SystemLog* const log = currentPlatform().systemLog;
    if (log) log->log("text field: an exception was raised at the end of editing");
  }
}

QtTextField::ClientCall::ClientCall(QtTextField& self)
    : running(self.core().actions()), field(self.weak_from_this().lock()), client(self.mClient) {}

Notification QtTextField::notification(const char* name) const {
  return {name, static_cast<const void*>(static_cast<const View*>(this))};
}

}  // namespace cutline
