// What happens when the user touches a control or the dialog's paper changes.
#include <algorithm>

#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "platform/ports/Platform.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

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
