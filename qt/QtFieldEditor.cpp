#include "qt/QtFieldEditor.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <functional>
#include <optional>

#include "platform/ports/TextField.h"

namespace cutline {
namespace {

void redirect(QAction& action, bool enabled, QObject* context, const std::function<void()>& to) {
  action.disconnect(context);
  action.setEnabled(enabled);
  QObject::connect(&action, &QAction::triggered, context, to);
}

bool isModifier(const QKeyEvent& event) {
  const int key = event.key();
  return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

}  // namespace

QtFieldEditor::Delegate::~Delegate() = default;

QtFieldEditor::QtFieldEditor() {
  const auto heed = [this] { lineDidChange(); };
  connect(this, &QLineEdit::textChanged, this, heed);
  connect(this, &QLineEdit::selectionChanged, this, heed);
  connect(this, &QLineEdit::cursorPositionChanged, this, heed);
  connect(this, &QLineEdit::returnPressed, this, [this] {
    if (mDelegate) mDelegate->didEndEditing();
  });
}

EditedText QtFieldEditor::current() const {
  const int caret = cursorPosition();
  if (!hasSelectedText()) return {text(), caret, caret};
  return {text(), caret == selectionStart() ? selectionEnd() : selectionStart(), caret};
}

void QtFieldEditor::showText(const QString& text) noexcept {
  ++mShown;
  cancelComposition();
  const auto end = static_cast<int>(text.size());
  show({text, end, end});
  mSettled = current();
  mHistory.clear();
}

void QtFieldEditor::correctText(const QString& text) noexcept {
  ++mShown;
  const auto [location, length] = selectionAfterCorrection(
      static_cast<std::size_t>(mSettled.text.size()), static_cast<std::size_t>(mSettled.caret),
      static_cast<std::size_t>(text.size()));
  cancelComposition();
  show({text, static_cast<int>(location), static_cast<int>(location + length)});
  mSettled = current();
  mHistory.correct(mSettled);
}

void QtFieldEditor::undoEdit() noexcept {
  if (!canUndo()) return;
  cancelComposition();
  goTo(mHistory.undo());
}

void QtFieldEditor::redoEdit() noexcept {
  if (!canRedo()) return;
  cancelComposition();
  goTo(mHistory.redo());
}

void QtFieldEditor::goTo(const std::optional<EditedText>& state) {
  if (!state) return;
  show(*state);
  mSettled = *state;
  if (mDelegate) mDelegate->didChange();
}

bool QtFieldEditor::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return handleKey(static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod:
      return handleComposition(static_cast<QInputMethodEvent&>(*event));
    case QEvent::DragEnter:
    case QEvent::DragLeave:
    case QEvent::Drop:
      return handleDrag(*event);
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      return handleFocus(static_cast<QFocusEvent&>(*event));
    default:
      return handleInLine(*event);
  }
}

// QLineEdit counts characters among those that are composed (Qt 6.4.2: Delete while a composition
// has taken the selection's place takes the character behind it away, too), so composing ends
// before a key that the input method has left to the line.
bool QtFieldEditor::handleKey(QKeyEvent& event) {
  if (!isModifier(event)) commitComposition();
  const bool isUndo = event.matches(QKeySequence::Undo);
  if (!isUndo && !event.matches(QKeySequence::Redo)) return handleInLine(event);
  event.accept();
  if (isUndo) {
    undoEdit();
  } else {
    redoEdit();
  }
  return true;
}

// The line's own menu only borrows the keyboard.
bool QtFieldEditor::handleFocus(QFocusEvent& event) {
  if (event.lostFocus()) {
    cancelComposition();
    mHistory.endRun();
  }
  const bool handled = handleInLine(event);
  if (!mDelegate || event.reason() == Qt::PopupFocusReason) return handled;
  if (event.gotFocus()) {
    mDelegate->didTakeFocus();
  } else {
    mDelegate->didEndEditing();
  }
  return handled;
}

// Lets QLineEdit have the event, and looks at what it has made of the line. QLineEdit sends itself
// further events while it is at work.
bool QtFieldEditor::handleInLine(QEvent& event) {
  const QPointer<QtFieldEditor> alive(this);
  const bool handled = passToLine(event);
  if (alive && mDepth == 0 && !isStillComposing()) settle(Place::selection);
  return handled;
}

bool QtFieldEditor::passToLine(QEvent& event) {
  const QPointer<QtFieldEditor> alive(this);
  ++mDepth;
  const bool handled = QLineEdit::event(&event);
  if (alive) --mDepth;
  return handled;
}

// QLineEdit moves the caret with the drag, and in Qt 6.4.2 leaves it there without the selection
// when the drag only passes by. The selection that counts is the one from before, which comes back
// unless the drop is taken.
bool QtFieldEditor::handleDrag(QEvent& event) {
  const bool handled = passToLine(event);
  mDragging = event.type() == QEvent::DragEnter && event.isAccepted();
  if (event.type() == QEvent::Drop) settle(Place::anywhere);
  if (event.type() == QEvent::DragLeave) show(mSettled);
  return handled;
}

// For what reaches the line in no event of its own: a program's calls, its menu, assistive
// technology.
void QtFieldEditor::lineDidChange() {
  if (mDepth > 0 || isStillComposing()) return;
  settle(Place::anywhere);
}

void QtFieldEditor::settle(Place place) {
  const EditedText now = current();
  if (now.text == mSettled.text) {
    if (!mDragging && !mComposing) mSettled = now;
    return;
  }
  const EditedText before = mSettled;
  const unsigned shown = mShown;
  const EditProposal edit =
      place == Place::selection ? editAtSelection(before, now) : editAnywhere(before, now);
  const bool taken = !mDelegate || mDelegate->mayChange(edit);
  if (mShown != shown) return;  // whoever was asked has shown something else instead
  if (!taken) {
    cancelComposition();
    return show(before);
  }
  mSettled = now;
  mHistory.record(before, now);
  if (mDelegate) mDelegate->didChange();
}

void QtFieldEditor::show(const EditedText& state) {
  ++mDepth;
  if (text() != state.text) setText(state.text);
  if (state.anchor == state.caret) {
    setCursorPosition(state.caret);
  } else {
    setSelection(state.anchor, state.caret - state.anchor);
  }
  --mDepth;
}

// QLineEdit's own menu, with its history replaced. The actions of Qt 6.4.2 have no names to find
// them by: undo and redo are the first two.
void QtFieldEditor::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* const menu = createStandardContextMenu();
  if (!menu) return;
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto actions = menu->actions();
  redirect(*actions[0], canUndo(), this, [this] { undoEdit(); });
  redirect(*actions[1], canRedo(), this, [this] { redoEdit(); });
  menu->popup(event->globalPos());
}

}  // namespace cutline
