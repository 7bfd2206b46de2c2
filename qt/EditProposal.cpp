#include "qt/EditProposal.h"

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

}  // namespace cutline
