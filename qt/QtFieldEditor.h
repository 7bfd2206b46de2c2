// The line that a text field is edited in: QLineEdit, with every change of the text judged before
// it counts. QLineEdit has many ways in (keys, input methods, the clipboard, drops, its menu,
// assistive technology) and no say in most of them, so the editor looks at what each event has made
// of the line, and puts the line back when its delegate refuses that. Its history is its own, for
// QLineEdit's (Qt 6.4.2) is lost when the line is put back with setText.
#pragma once

#include <QLineEdit>
#include <optional>

#include "qt/TextEdits.h"

namespace cutline {

class QtFieldEditor : public QLineEdit {
 public:
  class Delegate {
   public:
    virtual ~Delegate();
    // Asked for each edit of the user's, before it counts; undoing and redoing are not asked for.
    virtual bool mayChange(const EditProposal& edit) noexcept = 0;
    // The user has changed the text. The delegate may correct it at once.
    virtual void didChange() noexcept = 0;
    // The line has got the keyboard.
    virtual void didTakeFocus() noexcept = 0;
    // Return was pressed, or the line has lost the keyboard. (In Qt 6.4.2
    // QLineEdit::editingFinished tells of the latter only after edits that QLineEdit knows for
    // edits.)
    virtual void didEndEditing() noexcept = 0;
  };

  QtFieldEditor();

  // Borrowed; null removes it.
  void setDelegate(Delegate* delegate) noexcept { mDelegate = delegate; }

  // The text that counts. While an input method composes, that is the one from before.
  const QString& settledText() const noexcept { return mSettled.text; }

  // Shows another text, with the caret behind it, and forgets the history. For programs: nobody is
  // asked or told.
  void showText(const QString& text) noexcept;
  // Shows another text in the place of what the user has just made. The two are one step of the
  // history, for undo must not lead back to a text that would only be corrected again.
  void correctText(const QString& text) noexcept;

  bool canUndo() const noexcept { return mHistory.canUndo(); }
  bool canRedo() const noexcept { return mHistory.canRedo(); }
  void undoEdit() noexcept;
  void redoEdit() noexcept;

  bool event(QEvent* event) override;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  enum class Place { selection, anywhere };

  EditedText current() const;
  bool handleKey(QKeyEvent& event);
  bool handleFocus(QFocusEvent& event);
  bool handleDrag(QEvent& event);
  bool handleComposition(QInputMethodEvent& event);
  bool handleInLine(QEvent& event);
  bool passToLine(QEvent& event);
  void lineDidChange();
  void settle(Place place);
  bool isStillComposing();
  void commitComposition();
  void cancelComposition();
  void forgetComposition();
  void show(const EditedText& state);
  void goTo(const std::optional<EditedText>& state);

  Delegate* mDelegate = nullptr;
  EditHistory mHistory;
  EditedText mSettled;   // what counts
  EditedText mComposed;  // the line as the input method has left it, while one composes
  bool mComposing = false;
  bool mDragging = false;  // a drag over the line shows where it would drop, with the caret
  int mDepth = 0;          // QLineEdit is at work: its signals tell of nothing that is complete
  unsigned mShown = 0;     // how often a program has shown another text
};

}  // namespace cutline
