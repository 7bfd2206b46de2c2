#include "tests/textinput/FieldModel.h"

#include <algorithm>

namespace cutline {
namespace {

bool isLowHalf(char16_t c) { return c >= 0xDC00 && c < 0xE000; }

std::u16string decimal(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

// The line with its selection replaced, and the caret behind what replaced it.
LineState replaced(const LineState& line, const std::u16string& with) {
  const std::size_t caret = line.start() + with.size();
  return {line.text.substr(0, line.start()) + with + line.text.substr(line.end()), caret, caret};
}

// What stands in the place of the selection when nothing else has changed.
std::optional<std::u16string> replacement(const LineState& from, const LineState& to) {
  if (to.anchor != to.caret || to.caret < from.start()) return std::nullopt;
  const std::u16string put = to.text.substr(from.start(), to.caret - from.start());
  return replaced(from, put) == to ? std::optional(put) : std::nullopt;
}

}  // namespace

std::size_t placeBefore(const std::u16string& text, std::size_t place) {
  if (place == 0) return 0;
  return place - (isLowHalf(text[place - 1]) ? 2 : 1);
}

std::size_t placeAfter(const std::u16string& text, std::size_t place) {
  if (place == text.size()) return place;
  const bool isPair = place + 1 < text.size() && isLowHalf(text[place + 1]);
  return place + (isPair ? 2 : 1);
}

void HistoryModel::forget() {
  mDone.clear();
  mUndone.clear();
  endRun();
}

char HistoryModel::kindOf(const LineState& from, const LineState& to) {
  if (to.anchor != to.caret) return 'x';
  if (to.text.size() < from.text.size()) {
    std::u16string without = from.text;
    without.erase(to.caret, from.text.size() - to.text.size());
    if (without == to.text) return 'd';
  }
  const auto put = replacement(from, to);
  return put && !put->empty() && placeAfter(*put, 0) == put->size() ? 't' : 'x';
}

void HistoryModel::record(const LineState& from, const LineState& to) {
  const char kind = kindOf(from, to);
  const bool goesOn = kind != 'x' && kind == mRunning && mUndone.empty() && !mDone.empty() &&
                      mDone.back().to == from;
  if (!goesOn) mDone.push_back({from, to});
  mDone.back().to = to;
  mUndone.clear();
  mRunning = kind;
  if (!mDone.back().isIdle()) return;
  mDone.pop_back();
  endRun();
}

void HistoryModel::correct(const LineState& to) {
  for (auto [pile, end] : {std::pair{&mUndone, &Step::from}, std::pair{&mDone, &Step::to}}) {
    if (pile->empty()) continue;
    pile->back().*end = to;
    if (!pile->back().isIdle()) continue;
    pile->pop_back();
    endRun();
  }
}

std::optional<LineState> HistoryModel::undo() {
  if (mDone.empty()) return std::nullopt;
  endRun();
  mUndone.push_back(mDone.back());
  mDone.pop_back();
  return mUndone.back().from;
}

std::optional<LineState> HistoryModel::redo() {
  if (mUndone.empty()) return std::nullopt;
  endRun();
  mDone.push_back(mUndone.back());
  mUndone.pop_back();
  return mDone.back().to;
}

std::u16string FieldModel::shown(const std::u16string& text) const {
  return showsMillimetres ? decimal(test::leadingNumber(text)) + u" mm" : text;
}

// Every key ends a composition.
void FieldModel::type(const std::u16string& character) {
  cancelComposition();
  becomes(replaced(mLine, character), Place::selection);
}

void FieldModel::paste(const std::u16string& text) { type(text); }

void FieldModel::remove(std::size_t from, std::size_t to) {
  if (from == to) return;
  LineState line = mLine;
  line.anchor = from;
  line.caret = to;
  becomes(replaced(line, {}), Place::selection);
}

void FieldModel::cut() {
  cancelComposition();
  remove(mLine.start(), mLine.end());
}

void FieldModel::deleteBackward() {
  cancelComposition();
  if (mLine.anchor != mLine.caret) return cut();
  remove(placeBefore(mLine.text, mLine.caret), mLine.caret);
}

void FieldModel::deleteForward() {
  cancelComposition();
  if (mLine.anchor != mLine.caret) return cut();
  remove(mLine.caret, placeAfter(mLine.text, mLine.caret));
}

void FieldModel::drop(const std::u16string& text, std::size_t position) {
  LineState line = mLine;
  line.anchor = line.caret = position;
  becomes(replaced(line, text), Place::anywhere);
}

void FieldModel::select(std::size_t anchor, std::size_t caret) {
  becomes({mLine.text, anchor, caret}, Place::selection);
}

void FieldModel::home(bool extending) {
  cancelComposition();
  select(extending ? mLine.anchor : 0, 0);
}

void FieldModel::end(bool extending) {
  cancelComposition();
  const std::size_t size = mLine.text.size();
  select(extending ? mLine.anchor : size, size);
}

void FieldModel::compose(const std::u16string& preedit) {
  if (preedit.empty()) return cancelComposition();
  mComposing = true;
  mLine = mComposed = replaced(mLine, {});
}

void FieldModel::commit(const std::u16string& text, const std::u16string& preedit) {
  mLine = mComposed = replaced(mLine, text);
  mComposing = !preedit.empty();
  settle(Place::anywhere);
}

void FieldModel::commitOver(std::size_t count, const std::u16string& text) {
  LineState line = mLine;
  line.anchor = line.caret - count;
  mLine = replaced(line, text);
  mComposing = false;
  settle(Place::anywhere);
}

void FieldModel::assist(const std::u16string& text) {
  becomes({text, text.size(), text.size()}, Place::anywhere);
}

// Something other than the input method has made this of the line.
void FieldModel::becomes(const LineState& line, Place place) {
  mLine = line;
  if (mComposing) {
    if (mLine == mComposed) return;
    mComposing = false;
    if (mLine.text == mComposed.text && mLine.text != mSettled.text) {
      mLine = mSettled;
      return;
    }
  }
  settle(place);
}

void FieldModel::settle(Place place) {
  if (mLine.text == mSettled.text) {
    if (!mComposing) mSettled = mLine;
    return;
  }
  std::size_t from = mSettled.start();
  std::size_t to = mLine.start();
  if (place == Place::anywhere && !replacement(mSettled, mLine)) {
    const std::u16string& was = mSettled.text;
    const std::u16string& is = mLine.text;
    from = 0;
    while (from < was.size() && from < is.size() && was[from] == is[from]) ++from;
    to = is.size();
    std::size_t left = was.size();
    while (to > from && left > from && was[left - 1] == is[to - 1]) --to, --left;
  }
  if (const auto refusal = test::refusalOf(settings, mSettled.text, from, mLine.text, to)) {
    mRefusals.push_back(*refusal);
    mLine = mSettled;
    mComposing = false;
    return;
  }
  const LineState before = mSettled;
  mSettled = mLine;
  mHistory.record(before, mSettled);
  tell();
}

void FieldModel::tell() {
  mEdited = true;
  ++mChanges;
  if (!isClamped) return;
  const std::u16string corrected = shown(decimal(std::clamp(test::leadingNumber(text()), 1, 99)));
  if (corrected != text()) correct(corrected);
}

void FieldModel::correct(const std::u16string& text) {
  const std::size_t behind = mSettled.text.size() - mSettled.caret;
  const bool wasEmpty = mSettled.text.empty();
  const std::size_t caret = text.size() > behind ? text.size() - behind : 0;
  mSettled = {text, wasEmpty ? 0 : caret, caret};
  mLine = mSettled;
  mComposing = false;
  mHistory.correct(mSettled);
}

void FieldModel::undo() {
  cancelComposition();
  travel(&HistoryModel::undo);
}

void FieldModel::redo() {
  cancelComposition();
  travel(&HistoryModel::redo);
}

void FieldModel::pressReturn() {
  cancelComposition();
  endEditing();
}

void FieldModel::travel(std::optional<LineState> (HistoryModel::*way)()) {
  const auto state = (mHistory.*way)();
  if (!state) return;
  mComposing = false;
  mLine = mSettled = *state;
  tell();
}

void FieldModel::cancelComposition() {
  if (!mComposing) return;
  mComposing = false;
  mLine = mSettled;
}

void FieldModel::set(const std::u16string& text) {
  const std::u16string now = shown(text);
  if (now == mSettled.text) return;
  mComposing = false;
  mLine = mSettled = {now, now.size(), now.size()};
  mHistory.forget();
}

void FieldModel::endEditing() {
  if (!mEdited) return;
  mEdited = false;
  // Shown anew from the value that the text is taken for, so it is converted there and back.
  const std::u16string now = shown(shown(text()));
  if (now != text()) correct(now);
  ++mActions;
}

void FieldModel::leave() {
  cancelComposition();
  mHistory.endRun();
  mLine.anchor = mLine.caret;
  mSettled = mLine;
  endEditing();
}

}  // namespace cutline
