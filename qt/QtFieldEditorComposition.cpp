// Text that an input method composes in the line.
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

#include "qt/QtFieldEditor.h"

namespace cutline {

// Composing is no edit yet: QLineEdit (Qt 6.4.2) takes the selection away at the start and
// tells of a change, but what counts is what the input method commits.
bool QtFieldEditor::handleComposition(QInputMethodEvent& event) {
  const bool wasComposing = mComposing;
  const bool handled = passToLine(event);
  mComposing = !event.preeditString().isEmpty();
  mComposed = current();
  if (!event.commitString().isEmpty() || event.replacementLength() > 0) {
    settle(Place::anywhere);
  } else if (!mComposing && wasComposing) {
    show(mSettled);
  } else if (!mComposing) {
    settle(Place::selection);
  }
  return handled;
}

// A composition ends when something else moves the caret or changes the text. Nothing has come of
// it then; what it had taken away returns, unless it was edited over.
bool QtFieldEditor::isStillComposing() {
  if (!mComposing) return false;
  const EditedText now = current();
  if (now == mComposed) return true;
  forgetComposition();
  if (now.text == mComposed.text && now.text != mSettled.text) show(mSettled);
  return false;
}

void QtFieldEditor::commitComposition() {
  if (mComposing) QGuiApplication::inputMethod()->commit();
  cancelComposition();
}

void QtFieldEditor::cancelComposition() {
  if (!mComposing) return;
  // The input method may answer with an event, which is handled as every other.
  QGuiApplication::inputMethod()->reset();
  if (!mComposing) return;
  forgetComposition();
  show(mSettled);
}

void QtFieldEditor::forgetComposition() {
  mComposing = false;
  ++mDepth;
  QInputMethodEvent nothing;
  inputMethodEvent(&nothing);
  --mDepth;
}

}  // namespace cutline
