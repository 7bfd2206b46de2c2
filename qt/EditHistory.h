// What undo and redo go through in a text field. Each step is an edit of the user's with the text
// and the selection before and after it. Consecutive edits that each put in one character are one
// step, and so are consecutive edits that only take away, as long as each goes on where the last
// one has left the text and its selection.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "qt/EditedText.h"

namespace cutline {

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
