// Reads the marked choices into the selections, and sets the controls from the selections.
#include <algorithm>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/options/preset_tags.h"
#include "bundle/ppd/text_bytes.h"
#include "bundle/preview/nil_controls.h"

namespace cutline {
namespace {

// The position of the object itself, not of its name; nothing when it isn't in the list.
std::optional<int> positionOf(const PDEChoice* selection, const ChoiceList& choices) noexcept {
  const auto found = std::find_if(choices.begin(), choices.end(),
                                  [&](const auto& choice) { return choice.get() == selection; });
  if (found == choices.end()) return std::nullopt;
  return static_cast<int>(found - choices.begin());
}

}  // namespace

void OptionPDE13_v400_::updateMarkedSelections(std::uint32_t item) noexcept {
  for (const OptionRow& row : kOptions) {
    if (!(item & row.item) || !(this->*row.option)) continue;
    readMarkedChoice(row, row.selection);
    if (row.id == OptionId::cutEvery) {
      readMarkedChoice(rowOf(OptionId::autoCut), &OptionPDE13_v400_::mAutoCut_CutEvery_Selection);
    }
  }
}

// With nothing marked and no default the old selection stays: it is still an element of the list,
// and inventing a choice would show what nobody has chosen.
void OptionPDE13_v400_::readMarkedChoice(const OptionRow& row,
                                         PDEChoice* OptionPDE13_v400_::*selection) noexcept {
  const ChoiceList* choices = (this->*row.choices).get();
  if (!choices) {
    this->*selection = nullptr;
    return;
  }
  const std::int64_t position = markedOrDefaultIndex(choices, row.keyword);
  if (position < 0 || position >= static_cast<std::int64_t>(choices->size())) return;
  this->*selection = (*choices)[static_cast<std::size_t>(position)].get();
}

void OptionPDE13_v400_::updateUIItem(std::uint32_t item) noexcept {
  if (item & kItemOptionPopUp) {
    setBoxesFromPopUp();
  } else {
    for (const OptionRow& row : kOptions) {
      if (item & row.item) refreshCheckBox(row);
    }
    selectPresetOfBoxes();
  }
  enabledCheck_OP();
  if (mOptionView) mOptionView->nativeView()->setNeedsDisplay(true);
}

void OptionPDE13_v400_::refreshCheckBox(const OptionRow& row) noexcept {
  const PDEChoice* selection = this->*row.selection;
  const ChoiceList* choices = (this->*row.choices).get();
  if (!selection || !choices) return;
  if (row.id == OptionId::cutEvery) {
    refreshCutEvery();
    return;
  }
  CheckBox* box = this->*row.checkBox;
  if (row.refreshedOnlyWhileEnabled && !isEnabled(box)) return;
  if (const auto position = positionOf(selection, *choices)) setState(box, *position);
}

void OptionPDE13_v400_::refreshCutEvery() noexcept {
  if (positionOf(mCutEvery_Selection, *mCutEvery_Choices)) {
    const auto count = decodedText(mCutEvery_Selection->choice()->choice, TextEncoding::utf8);
    if (count && mCutEveryTxBx) mCutEveryTxBx->setStringValue(*count);
    if (count && mCutEveryStpr) mCutEveryStpr->setIntValue(integerValue(*count));
  }
  // The platform's lookup in an absent list yields 0, which is off.
  const auto position = mAutoCut_Choices
                            ? positionOf(mAutoCut_CutEvery_Selection, *mAutoCut_Choices)
                            : CheckBox::kOff;
  if (position) setState(mCutEveryChkBx, *position);
}

void OptionPDE13_v400_::selectPresetOfBoxes() noexcept {
  const PresetRow* preset = presetOfTag(targetPopUpButtonTag());
  if (preset && mOptionPopUpButton) mOptionPopUpButton->selectItemWithTag(preset->tag);
}

void OptionPDE13_v400_::setBoxesFromPopUp() noexcept {
  const PresetRow* preset = presetOfTag(mOptionPopUpButton ? mOptionPopUpButton->selectedTag() : 0);
  if (!preset) return;
  for (std::size_t i = 0; i < kPresetBoxes.size(); ++i) {
    if (preset->boxes[i] == BoxSetting::keep) continue;
    setState(this->*rowOf(kPresetBoxes[i]).checkBox, static_cast<int>(preset->boxes[i]));
  }
  setState(mMirrorPrintChkBx, CheckBox::kOff);
}

}  // namespace cutline
