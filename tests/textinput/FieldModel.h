// What a text field and its line are to be after each thing that a user or a program does: a model
// on plain strings, without the toolkit.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/VettingModel.h"

namespace cutline {

struct LineState {
  std::u16string text;
  std::size_t anchor = 0;
  std::size_t caret = 0;

  std::size_t start() const { return std::min(anchor, caret); }
  std::size_t end() const { return std::max(anchor, caret); }
  friend bool operator==(const LineState&, const LineState&) = default;
};

// Undo and redo, as two piles.
class HistoryModel {
 public:
  void forget();
  void endRun() { mRunning = 'x'; }
  void record(const LineState& from, const LineState& to);
  void correct(const LineState& to);
  std::optional<LineState> undo();
  std::optional<LineState> redo();
  bool canUndo() const { return !mDone.empty(); }
  bool canRedo() const { return !mUndone.empty(); }

 private:
  struct Step {
    LineState from;
    LineState to;
    bool isIdle() const { return from.text == to.text; }
  };
  static char kindOf(const LineState& from, const LineState& to);

  std::vector<Step> mDone;
  std::vector<Step> mUndone;
  char mRunning = 'x';  // t: typing, d: deleting, x: neither
};

class FieldModel {
 public:
  test::VettingSettings settings;
  bool showsMillimetres = false;
  bool isClamped = false;  // the panel corrects each change to a number from 1 to 99

  // What is to be seen and heard.
  const LineState& line() const { return mLine; }
  const std::u16string& text() const { return mSettled.text; }
  const HistoryModel& history() const { return mHistory; }
  const std::vector<test::Refusal>& refusals() const { return mRefusals; }
  int changes() const { return mChanges; }
  int actions() const { return mActions; }
  bool isComposing() const { return mComposing; }

  void type(const std::u16string& character);
  void paste(const std::u16string& text);
  void cut();
  void deleteBackward();
  void deleteForward();
  void drop(const std::u16string& text, std::size_t position);
  void select(std::size_t anchor, std::size_t caret);
  void home(bool extending);
  void end(bool extending);
  void compose(const std::u16string& preedit);
  void commit(const std::u16string& text, const std::u16string& preedit);
  void commitOver(std::size_t count, const std::u16string& text);
  // Assistive technology sets the text whole, whatever it is asked for.
  void assist(const std::u16string& text);
  void undo();
  void redo();
  void set(const std::u16string& text);
  void pressReturn();
  void leave();

 private:
  enum class Place { selection, anywhere };

  std::u16string shown(const std::u16string& text) const;
  void remove(std::size_t from, std::size_t to);
  void becomes(const LineState& line, Place place);
  void settle(Place place);
  void tell();
  void correct(const std::u16string& text);
  void travel(std::optional<LineState> (HistoryModel::*way)());
  void cancelComposition();
  void endEditing();

  LineState mLine;
  LineState mSettled;
  LineState mComposed;
  bool mComposing = false;
  bool mEdited = false;
  HistoryModel mHistory;
  std::vector<test::Refusal> mRefusals;
  int mChanges = 0;
  int mActions = 0;
};

// The place before or after the character at a place in the text.
std::size_t placeBefore(const std::u16string& text, std::size_t place);
std::size_t placeAfter(const std::u16string& text, std::size_t place);

}  // namespace cutline
