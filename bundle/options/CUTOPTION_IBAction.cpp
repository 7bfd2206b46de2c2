// What happens when the user touches a control or the dialog's paper changes.
#include <algorithm>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/ppd/text_bytes.h"
#include "bundle/preview/nil_controls.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

// The numbers that the cut-every group can take, where the PPD says nothing.
constexpr int kSmallestCount = 1;
constexpr int kLargestCount = 99;

int countOf(PDEChoice& choice) noexcept { return integerValue(choice.ppdTitle().value_or("")); }

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

// The presets of tape printers count from here: auto cut 4, half cut 2, chain printing 1.
constexpr int kFirstTapeTag = 4;
constexpr int kSpecialTapeTag = 12;

}  // namespace

void OptionPDE13_v400_::changeOption(View* sender) noexcept {
  if (mOptionView) mOptionView->nativeView()->setNeedsDisplay(true);
  const auto row = std::find_if(kOptions.begin(), kOptions.end(), [&](const OptionRow& each) {
    return sender && static_cast<View*>(this->*each.checkBox) == sender;
  });
  if (row != kOptions.end()) {
    const int state = (this->*row->checkBox)->state();
    if (row->id == OptionId::cutEvery && state == CheckBox::kOn) warnOfAutoCutOnHSMedia();
    const OptionRow& switched = rowOf(row->switchedByBox);
    selectionForItem(state, switched.keyword, (this->*switched.choices).get(), row->item);
    updateUIItem(row->item);
  }
  enabledCheck_OP();
}

void OptionPDE13_v400_::warnOfAutoCutOnHSMedia() noexcept {
  const TapeInfo info = currentTapeInfo();
  Toolkit* toolkit = currentPlatform().toolkit;
  if (!toolkit || !info.paperName || !beginsWithHS(*info.paperName)) return;
  toolkit->runModal({.messageText = "",
                     .informativeText = localizedString("RS_Alrt_AutoCutWithHS"),
                     .buttonTitles = {"OK"}});
}

void OptionPDE13_v400_::changeOptionPopUpButton(View* /*sender*/) noexcept {
  updateUIItem(kItemOptionPopUp);
}

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
  updateUIItem(kItemCutEvery);
}

void OptionPDE13_v400_::controlTextDidChange(const Notification& notification) noexcept {
  View* field = mCutEveryTxBx;
  const auto* object = std::get_if<const void*>(&notification.object);
  if (field && object && *object == field) changeCutEveryValue(field);
}

int OptionPDE13_v400_::targetPopUpButtonTag() const noexcept {
  const bool special = isShownAndOn(mSpecialTapeChkBx);
  const bool cut = !special && (isShownAndOn(mCutEveryChkBx) || isShownAndOn(mAutoCutChkBx));
  if (isWNPrinter()) return cut ? 3 : (isShownAndOn(mCutAndEndChkBx) ? 2 : 1);

  const bool half = !special && isShownAndOn(mHalfCutChkBx);
  const bool chain = !special && isShownAndOn(mChainPrintChkBx);
  if (isHidden(mCutMarkChkBx)) {
    return special ? kSpecialTapeTag : kFirstTapeTag + 4 * cut + 2 * half + chain;
  }
  if (isShownAndOn(mCutMarkChkBx)) return chain ? 14 : 13;
  return chain ? 15 : 16;
}

void OptionPDE13_v400_::checkChangeSettingWhenPageSizeChanged(
    const Notification& /*notification*/) noexcept {
  if (!markAutoCutOffOnHSMedia()) return;
  updateMarkedSelections(kItemCutEvery);
  updateUI();
}

}  // namespace cutline
