// What becomes of a text while it is edited: its states, the edits between them, their history.
#pragma once

#include <QString>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "platform/ports/TextField.h"

namespace cutline {

// A text with its selection, as a text field holds it at one moment. Positions in UTF-16 units.
struct EditedText {
  QString text;
  int anchor = 0;  // where the selection began; equal to the caret without one
  int caret = 0;

  TextRange selection() const noexcept {
    const auto [first, last] = std::minmax(anchor, caret);
    return {static_cast<std::size_t>(first), static_cast<std::size_t>(last - first)};
  }

  friend bool operator==(const EditedText&, const EditedText&) = default;
};

// An edit of a text as a formatter judges it: what was there, what will be, and at which selection
// it is made.
struct EditProposal {
  QString before;
  TextRange madeAt;
  QString after;
  TextRange selection;  // after the edit

  friend bool operator==(const EditProposal&, const EditProposal&) = default;
};

// The edit of one who works at the caret: keys, an input method, the clipboard.
EditProposal editAtSelection(const EditedText& before, const EditedText& after) noexcept;

// The edit of one who need not heed the caret, as a drop or assistive technology: when it has not
// put something in the place of the selection, it counts as made with the part selected that it
// replaces, and with the caret behind the new part.
EditProposal editAnywhere(const EditedText& before, const EditedText& after) noexcept;

// What undo and redo go through in a text field. Each step is an edit of the user's with the text
// and the selection before and after it. Consecutive edits that each put in one character are one
// step, and so are consecutive edits that only take away, as long as each goes on where the last
// one has left the text and its selection.
class EditHistory {
 public:
  // Forgets everything.
  void clear() noexcept;

  // An edit that changed the text. What could be redone is forgotten.
  void record(const EditedText& before, const EditedText& after) noexcept;
  // The program has replaced the text that the history stands at: it is what the step that led
  // there leads to from now on, and where the next one to be redone starts. A step that no longer
  // changes the text is forgotten.
  void correct(const EditedText& corrected) noexcept;
  // The next edit is a step of its own.
  void endRun() noexcept { mRun = Kind::other; }

  bool canUndo() const noexcept { return mDone > 0; }
  bool canRedo() const noexcept { return mDone < mSteps.size(); }
  // Each goes one step and answers what is to be shown; nothing when there is no step that way.
  std::optional<EditedText> undo() noexcept;
  std::optional<EditedText> redo() noexcept;

 private:
  enum class Kind { typing, deletion, other };
  struct Step {
    EditedText before;
    EditedText after;
  };

  static Kind kindOf(const EditedText& before, const EditedText& after) noexcept;
  bool goesOn(Kind kind, const EditedText& before) const noexcept;
  void forgetIdle(std::size_t index) noexcept;

  std::vector<Step> mSteps;
  std::size_t mDone = 0;  // the steps that are not undone
  Kind mRun = Kind::other;
};

}  // namespace cutline
