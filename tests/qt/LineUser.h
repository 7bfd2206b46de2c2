// A user at a line: with keys, clipboard, mouse, an input method or assistive technology.
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QVariant>

namespace cutline {

class LineUser {
 public:
  explicit LineUser(QLineEdit* line) : mLine(line) {}

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(mLine, key, modifiers);
  }
  // Any characters, one after the other.
  void type(const QString& text) {
    for (const char32_t character : text.toUcs4()) {
      const QString typed = QString::fromUcs4(&character, 1);
      QKeyEvent down(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, typed);
      QApplication::sendEvent(mLine, &down);
      QKeyEvent up(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, typed);
      QApplication::sendEvent(mLine, &up);
    }
  }
  void selectAll() { press(Qt::Key_A, Qt::ControlModifier); }
  void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
  void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  void cut() { press(Qt::Key_X, Qt::ControlModifier); }
  void paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
  }

  // Drags a text to a place between two characters and lets it go there.
  void drop(const QString& text, int position) {
    dragOver(text, position);
    const QPointF place = placeOf(position);
    QDropEvent event(place, Qt::CopyAction, data(text), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mLine, &event);
  }
  void dragAway(const QString& text, int position) {
    dragOver(text, position);
    QDragLeaveEvent event;
    QApplication::sendEvent(mLine, &event);
  }

  void compose(const QString& preedit) {
    QInputMethodEvent event(preedit, {});
    QApplication::sendEvent(mLine, &event);
  }
  // Also goes on composing where a preedit text is given.
  void commit(const QString& text, const QString& preedit = {}) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(text);
    QApplication::sendEvent(mLine, &event);
  }
  // Replaces the characters before the caret.
  void commitOver(int count, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text, -count, count);
    QApplication::sendEvent(mLine, &event);
  }

  QAccessibleInterface& accessible() { return *QAccessible::queryAccessibleInterface(mLine); }
  QAccessibleEditableTextInterface& assisted() { return *accessible().editableTextInterface(); }

 private:
  QMimeData* data(const QString& text) {
    mDragged.setText(text);
    return &mDragged;
  }

  void dragOver(const QString& text, int position) {
    const QPoint place = placeOf(position).toPoint();
    QDragEnterEvent enter(place, Qt::CopyAction, data(text), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mLine, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, data(text), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mLine, &move);
  }

  // The middle of what belongs to the place, so that rounding doesn't matter.
  QPointF placeOf(int position) const {
    const int y = mLine->height() / 2;
    int first = 0;
    while (first < mLine->width() && mLine->cursorPositionAt({first, y}) < position) ++first;
    int last = first;
    while (last < mLine->width() && mLine->cursorPositionAt({last, y}) == position) ++last;
    return {(first + last) / 2.0, static_cast<double>(y)};
  }

  QLineEdit* mLine;
  QMimeData mDragged;
};

}  // namespace cutline
