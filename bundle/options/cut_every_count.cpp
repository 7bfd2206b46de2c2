// The number of labels between two cuts: one choice of LxCutLabel in field and stepper. What is
// shown, what is marked and what a save hands on is the same choice, whatever numbers or words the
// PPD lists.
#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/ppd/text_bytes.h"

namespace cutline {
namespace {

// The numbers that the cut-every group can take, where the PPD says nothing.
constexpr int kSmallestCount = 1;
constexpr int kLargestCount = 99;

int countOf(PDEChoice& choice) noexcept { return leadingInteger(choice.ppdTitle().value_or("")); }

struct CountRange {
  int smallest = kSmallestCount;
  int largest = kLargestCount;
};

CountRange rangeOf(const ChoiceList* choices) noexcept {
  if (!choices || choices->empty()) return {};
  return {countOf(*choices->front()), countOf(*choices->back())};
}

// Not std::clamp: a PPD may list its numbers downwards.
int nearestIn(const CountRange& range, int count) noexcept {
  if (count < range.smallest) return range.smallest;
  return count > range.largest ? range.largest : count;
}

bool areConsecutive(const ChoiceList& choices) noexcept {
  std::int64_t next = choices.empty() ? 0 : countOf(*choices.front());
  return std::all_of(choices.begin(), choices.end(),
                     [&](const auto& choice) { return countOf(*choice) == next++; });
}

int within32Bits(std::int64_t number) noexcept {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

}  // namespace

void OptionPDE13_v400_::changeCutEveryValue(View* sender) noexcept {
  const CountRange range = rangeOf(mCutEvery_Choices.get());
  int count = 0;
  if (sender && sender == static_cast<View*>(mCutEveryStpr)) {
    count = nearestIn(range, mCutEveryStpr->intValue());
    mCutEveryStpr->setIntValue(count);
    if (mCutEveryTxBx) mCutEveryTxBx->setStringValue(std::to_string(count));
  } else if (sender && sender == static_cast<View*>(mCutEveryTxBx)) {
    count = nearestIn(range, mCutEveryTxBx->intValue());
    mCutEveryTxBx->setStringValue(std::to_string(count));
    if (mCutEveryStpr) mCutEveryStpr->setIntValue(count);
  }
  selectionForItem(std::int64_t{count} - range.smallest, rowOf(OptionId::cutEvery).keyword,
                   mCutEvery_Choices.get(), kItemCutEvery);
  // Where nothing was marked, the field goes back to what is.
  if (!mCutEvery_Selection) updateMarkedSelections(kItemCutEvery);
  updateUIItem(kItemCutEvery);
}

// As many choices on as the arrows went beyond the number shown.
void OptionPDE13_v400_::stepCutEveryValue(View* sender) noexcept {
  if (!sender || sender != static_cast<View*>(mCutEveryStpr)) return;
  if (!mCutEvery_Choices || areConsecutive(*mCutEvery_Choices)) return changeCutEveryValue(sender);
  if (!mCutEvery_Selection) updateMarkedSelections(kItemCutEvery);
  const auto position = positionOf(mCutEvery_Selection, *mCutEvery_Choices);
  if (!position) return;
  const std::int64_t steps =
      std::int64_t{mCutEveryStpr->intValue()} - countOf(*mCutEvery_Selection);
  const auto last = static_cast<std::int64_t>(mCutEvery_Choices->size()) - 1;
  selectionForItem(std::clamp<std::int64_t>(*position + steps, 0, last),
                   rowOf(OptionId::cutEvery).keyword, mCutEvery_Choices.get(), kItemCutEvery);
  updateUIItem(kItemCutEvery);
}

void OptionPDE13_v400_::controlTextDidChange(const Notification& notification) noexcept {
  View* field = mCutEveryTxBx;
  const auto* object = std::get_if<const void*>(&notification.object);
  if (field && object && *object == field) changeCutEveryValue(field);
}

void OptionPDE13_v400_::refreshCutEvery() noexcept {
  if (const auto shown = positionOf(mCutEvery_Selection, *mCutEvery_Choices)) showCount(*shown);
  // The platform's lookup in an absent list yields 0, which is off.
  const auto position = mAutoCut_Choices
                            ? positionOf(mAutoCut_CutEvery_Selection, *mAutoCut_Choices)
                            : CheckBox::kOff;
  if (position) setState(mCutEveryChkBx, *position);
}

void OptionPDE13_v400_::showCount(std::int64_t position) noexcept {
  const auto& choice = (*mCutEvery_Choices)[static_cast<std::size_t>(position)];
  const auto count = decodedText(choice->choice()->choice, TextEncoding::utf8);
  if (!count) return;
  if (mCutEveryTxBx) mCutEveryTxBx->setStringValue(*count);
  showInStepper(leadingInteger(*count), position);
}

// The range holds what a number can be typed to, and a step for each choice to either side of the
// one shown.
void OptionPDE13_v400_::showInStepper(int count, std::int64_t position) noexcept {
  if (!mCutEveryStpr) return;
  if (mCutEvery_Choices && !mCutEvery_Choices->empty()) {
    const CountRange range = rangeOf(mCutEvery_Choices.get());
    const std::int64_t first = count - position;
    const auto steps = static_cast<std::int64_t>(mCutEvery_Choices->size()) - 1;
    mCutEveryStpr->setRange(within32Bits(std::min<std::int64_t>(first, range.smallest)),
                            within32Bits(std::max<std::int64_t>(first + steps, range.largest)));
  }
  mCutEveryStpr->setIntValue(count);
}

// What a save hands on for the number: the marked choice, or the first.
void OptionPDE13_v400_::showSavedCount() noexcept {
  if (!mCutEvery_Choices || mCutEvery_Choices->empty()) return;
  showCount(std::max<std::int64_t>(
      0, indexOfMarkedOption(mCutEvery_Choices.get(), rowOf(OptionId::cutEvery).keyword)));
}

}  // namespace cutline
