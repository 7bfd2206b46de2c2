#include "qt/TextEdits.h"

#include <QChar>
#include <algorithm>

namespace cutline {

namespace {

std::size_t sizeOf(const QString& text) { return static_cast<std::size_t>(text.size()); }

// True when only the selection was replaced, and the caret stands behind what replaced it.
bool replacesSelection(const EditedText& before, const EditedText& after) {
  const auto [location, length] = before.selection();
  const std::size_t behind = sizeOf(before.text) - location - length;
  const TextRange caret{sizeOf(after.text) - behind, 0};
  return sizeOf(after.text) >= location + behind && after.selection() == caret &&
         after.text.startsWith(QStringView(before.text).first(static_cast<qsizetype>(location))) &&
         after.text.endsWith(QStringView(before.text).last(static_cast<qsizetype>(behind)));
}

std::size_t commonStart(const QString& one, const QString& other) {
  const auto differ = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return static_cast<std::size_t>(differ.first - one.begin());
}

// At most `limit`.
std::size_t commonEnd(const QString& one, const QString& other, std::size_t limit) {
  const auto differ = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
  return std::min(static_cast<std::size_t>(differ.first - one.rbegin()), limit);
}

}  // namespace

EditProposal editAtSelection(const EditedText& before, const EditedText& after) noexcept {
  return {before.text, before.selection(), after.text, after.selection()};
}

EditProposal editAnywhere(const EditedText& before, const EditedText& after) noexcept {
  if (replacesSelection(before, after)) return editAtSelection(before, after);
  const std::size_t start = commonStart(before.text, after.text);
  const std::size_t shorter = std::min(sizeOf(before.text), sizeOf(after.text));
  const std::size_t end = commonEnd(before.text, after.text, shorter - start);
  const TextRange replaced{start, sizeOf(before.text) - end - start};
  return {before.text, replaced, after.text, {sizeOf(after.text) - end, 0}};
}

namespace {

// True for what a single key types: one character, of one or two units.
bool isOneCharacter(QStringView text) {
  return text.size() == 1 || (text.size() == 2 && text[0].isHighSurrogate());
}

// True when a part of the text is gone and the caret stands where it was.
bool onlyTakesAway(const EditedText& before, const EditedText& after) {
  const qsizetype gone = before.text.size() - after.text.size();
  const QStringView was(before.text);
  const QStringView is(after.text);
  return gone > 0 && was.first(after.caret) == is.first(after.caret) &&
         was.sliced(after.caret + gone) == is.sliced(after.caret);
}

// What stands in the place of the selection, up to the caret; empty when anything else has changed.
QStringView putAtSelection(const EditedText& before, const EditedText& after) {
  const int start = std::min(before.anchor, before.caret);
  const qsizetype behind = before.text.size() - std::max(before.anchor, before.caret);
  const QStringView was(before.text);
  const QStringView is(after.text);
  const bool isThere = after.caret >= start && is.size() - after.caret == behind &&
                       was.first(start) == is.first(start) && was.last(behind) == is.last(behind);
  return isThere ? is.sliced(start, after.caret - start) : QStringView();
}

}  // namespace

void EditHistory::clear() noexcept {
  mSteps.clear();
  mDone = 0;
  endRun();
}

void EditHistory::record(const EditedText& before, const EditedText& after) noexcept {
  const Kind kind = kindOf(before, after);
  const bool same = goesOn(kind, before);
  mSteps.resize(mDone);
  if (same) {
    mSteps.back().after = after;
  } else {
    mSteps.push_back({before, after});
  }
  mDone = mSteps.size();
  mRun = kind;
  forgetIdle(mDone - 1);
}

EditHistory::Kind EditHistory::kindOf(const EditedText& before, const EditedText& after) noexcept {
  if (after.anchor != after.caret) return Kind::other;
  if (onlyTakesAway(before, after)) return Kind::deletion;
  return isOneCharacter(putAtSelection(before, after)) ? Kind::typing : Kind::other;
}

bool EditHistory::goesOn(Kind kind, const EditedText& before) const noexcept {
  return kind != Kind::other && kind == mRun && mDone > 0 && !canRedo() &&
         mSteps[mDone - 1].after == before;
}

void EditHistory::correct(const EditedText& corrected) noexcept {
  if (canRedo()) mSteps[mDone].before = corrected;
  if (canUndo()) mSteps[mDone - 1].after = corrected;
  if (canRedo()) forgetIdle(mDone);
  if (canUndo()) forgetIdle(mDone - 1);
}

void EditHistory::forgetIdle(std::size_t index) noexcept {
  if (mSteps[index].before.text != mSteps[index].after.text) return;
  mSteps.erase(mSteps.begin() + static_cast<std::ptrdiff_t>(index));
  if (index < mDone) --mDone;
  endRun();
}

std::optional<EditedText> EditHistory::undo() noexcept {
  if (!canUndo()) return std::nullopt;
  endRun();
  return mSteps[--mDone].before;
}

std::optional<EditedText> EditHistory::redo() noexcept {
  if (!canRedo()) return std::nullopt;
  endRun();
  return mSteps[mDone++].after;
}

}  // namespace cutline
