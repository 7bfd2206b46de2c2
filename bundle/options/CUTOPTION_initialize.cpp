// The controls' first state, from the PPD's defaults and titles, and the rules that enable and
// disable them.
#include <algorithm>
#include <cstring>

#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/ppd/PDEChoice.h"
#include "bundle/ppd/PDEUtilsMethod13.h"
#include "bundle/ppd/text_bytes.h"

namespace cutline {
namespace {

bool hasDefault(const ppd_option_t& option, const char* choice) noexcept {
  return std::strncmp(option.defchoice, choice, kComparedBytes) == 0;
}

void enableIfDisabled(Control* control) noexcept {
  if (!isEnabled(control)) setEnabled(control, true);
}

void disableIfEnabled(Control* control) noexcept {
  if (isEnabled(control)) setEnabled(control, false);
}

}  // namespace

void OptionPDE13_v400_::initializeUI_OtherStr() noexcept {}

void OptionPDE13_v400_::initializeUI_CutAtEnd() noexcept {
  initializeCheckBox(rowOf(OptionId::cutEnd));
}
void OptionPDE13_v400_::initializeUI_Mirror() noexcept {
  initializeCheckBox(rowOf(OptionId::mirror));
}
void OptionPDE13_v400_::initializeUI_HalfCut() noexcept {
  initializeCheckBox(rowOf(OptionId::halfCut));
}
void OptionPDE13_v400_::initializeUI_ChainPrint() noexcept {
  initializeCheckBox(rowOf(OptionId::chainPrint));
}
void OptionPDE13_v400_::initializeUI_SpecialTape() noexcept {
  initializeCheckBox(rowOf(OptionId::specialTape));
}
void OptionPDE13_v400_::initializeUI_CutMark() noexcept {
  initializeCheckBox(rowOf(OptionId::cutMark));
}

void OptionPDE13_v400_::initializeCheckBox(const OptionRow& row) noexcept {
  setEnabled(this->*row.checkBox, this->*row.option != nullptr);
  setTitleAndDefault(row);
}

void OptionPDE13_v400_::setTitleAndDefault(const OptionRow& row) noexcept {
  CheckBox* box = this->*row.checkBox;
  const auto& choices = this->*row.choices;
  if (!box || !choices) return;
  box->setTitle(titleOfOption(row, row.titleKey));
  if (choices->empty()) return;
  box->setState(hasDefault(*(this->*row.option), row.tickedOn) ? CheckBox::kOn : CheckBox::kOff);
}

// A hidden box keeps the title of the interface file.
void OptionPDE13_v400_::initializeUI_AutoCut() noexcept {
  setEnabled(mAutoCutChkBx, mAutoCut_Option != nullptr);
  if (mAutoCutHideKey_dec == 1) setTitleAndDefault(rowOf(OptionId::autoCut));
}

void OptionPDE13_v400_::initializeUI_CutLabel() noexcept {
  const bool exists = mCutEvery_Option != nullptr;
  setEnabled(mCutEveryChkBx, exists);
  if (!mCutEvery_Choices) return;
  if (mCutEveryStr) mCutEveryStr->setStringValue(localizedString("RS_Labels"));
  setTitleAndDefault(rowOf(OptionId::cutEvery));
  setEnabled(mCutEveryTxBx, exists);
  const auto count = decodedText(mCutEvery_Option->defchoice, TextEncoding::system);
  if (mCutEveryTxBx && count) mCutEveryTxBx->setStringValue(*count);
  setEnabled(mCutEveryStpr, exists);
  const std::int64_t position = indexOfDefaultOption(mCutEvery_Choices.get());
  showInStepper(mCutEveryTxBx ? mCutEveryTxBx->intValue() : 0, std::max<std::int64_t>(position, 0));
}

void OptionPDE13_v400_::initializeUI_RemoveBlkSpace() noexcept {
  refreshTapeState();
  setTitleAndDefault(rowOf(OptionId::removeBlkSpace));
}

void OptionPDE13_v400_::refreshTapeState() noexcept {
  setTapeState(currentTapeInfo().tapeState);
  setEnabled(mRemoveBlkSpaceChkBx, getTapeState() == 0);
}

void OptionPDE13_v400_::enabledCheck_OP() noexcept {
  enableCutEveryGroup();
  if (!isHidden(mSpecialTapeChkBx)) {
    if (stateOf(mSpecialTapeChkBx) == CheckBox::kOff) {
      enableBesideSpecialTape();
    } else {
      disableUnderSpecialTape();
    }
  }
  applyPaperRule();
}

void OptionPDE13_v400_::enableCutEveryGroup() noexcept {
  const bool on = stateOf(mCutEveryChkBx) != CheckBox::kOff;
  if (isEnabled(mCutEveryTxBx) == on || isEnabled(mCutEveryStpr) == on) return;
  setEnabled(mCutEveryTxBx, on);
  setEnabled(mCutEveryStpr, on);
  PDEUtilsMethod13::setEnabledForText(on, mCutEveryStr);
}

// Also a box that its initialiser disabled because the PPD lacks the option.
void OptionPDE13_v400_::enableBesideSpecialTape() noexcept {
  for (CheckBox* box : {mAutoCutChkBx, mChainPrintChkBx, mHalfCutChkBx, mCutEveryChkBx}) {
    enableIfDisabled(box);
  }
}

void OptionPDE13_v400_::disableUnderSpecialTape() noexcept {
  for (CheckBox* box : {mAutoCutChkBx, mChainPrintChkBx, mHalfCutChkBx, mCutEveryChkBx}) {
    disableIfEnabled(box);
  }
  disableIfEnabled(mCutEveryTxBx);
  if (!isEnabled(mCutEveryStpr)) return;
  mCutEveryStpr->setEnabled(false);
  PDEUtilsMethod13::setEnabledForText(false, mCutEveryStr);
}

// By the paper's name alone, whether or not it is one of the PPD's sizes.
void OptionPDE13_v400_::applyPaperRule() noexcept {
  const PMPageFormat format =
      pdePluginCallbackObject ? pdePluginCallbackObject->pageFormat() : nullptr;
  setEnabled(mRemoveBlkSpaceChkBx, !beginsWithDCOrAV(paperNameOfPageFormat(format)));
}

}  // namespace cutline
