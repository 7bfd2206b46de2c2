#include "qt/QtTextField.h"

#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>

#include "qt/QtText.h"

namespace cutline {

namespace {

// Puts `text` in the place of what the user has just made. The edit and its correction become one
// step of the undo history, for undo must not lead back to a text that would only be corrected
// again. A field that the user has emptied shows the correction selected, so that the next key
// replaces it.
void correctEdit(QLineEdit& edit, const QString& text) {
  const bool emptied = edit.text().isEmpty();
  const qsizetype fromEnd = edit.text().size() - edit.cursorPosition();
  const bool madeByUndo = edit.isRedoAvailable();
  if (!madeByUndo) edit.undo();
  if (edit.text() != text) {
    edit.selectAll();
    edit.insert(text);
  }
  edit.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, text.size() - fromEnd)));
  if (emptied) edit.selectAll();
}

}  // namespace

QtTextField::QtTextField(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new QLineEdit, frame, std::move(actions)), mTextColor(*widget(), QPalette::Text) {
  QObject* const context = core().connectionContext();
  QObject::connect(widget(), &QLineEdit::textEdited, context, [this] { userDidEdit(); });
  QObject::connect(widget(), &QLineEdit::editingFinished, context, [this] { userDidEndEditing(); });
}

void QtTextField::setStringValue(const std::string& text) noexcept {
  if (text == mText) return;
  mText = text;
  if (!widget()) return;
  const QSignalBlocker quiet(widget());
  if (mInUserEdit) {
    correctEdit(*widget(), toQString(text));
  } else {
    widget()->setText(toQString(text));
  }
}

void QtTextField::setFormatter(std::shared_ptr<Formatter> formatter) noexcept {
  mFormatter = std::move(formatter);
}

void QtTextField::setClient(std::shared_ptr<TextFieldClient> client) noexcept {
  mClient = std::move(client);
}

void QtTextField::selectText(View* sender) noexcept {
  if (mClient) return mClient->selectText(sender);
  if (widget()) widget()->selectAll();
}

bool QtTextField::superBecomeFirstResponder() noexcept {
  if (!widget() || !isEnabled()) return false;
  widget()->setFocus();
  return true;
}

bool QtTextField::superResignFirstResponder() noexcept { return true; }

void QtTextField::superTextDidEndEditing(const Notification&) {}

void QtTextField::setTextDidChange(std::function<void()> handler) noexcept {
  mTextDidChange = std::move(handler);
}

void QtTextField::userDidEdit() noexcept {
  const QPointer<QObject> alive = core().connectionContext();
  mText = toUtf8(widget()->text());
  mEditedSinceAction = true;
  mInUserEdit = true;
  core().actions().run(core(), mTextDidChange);
  if (alive) mInUserEdit = false;
}

// Return ends editing, and so does leaving the field afterwards: one action for the two.
void QtTextField::userDidEndEditing() noexcept {
  if (!mEditedSinceAction) return;
  mEditedSinceAction = false;
  runAction();
}

}  // namespace cutline
