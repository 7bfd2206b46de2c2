// Reads the marked choices into the selections, and sets the controls from the selections.
#include <algorithm>

#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/options/preset_tags.h"

namespace cutline {

void OptionPDE13_v400_::updateMarkedSelections(std::uint32_t item) noexcept {
  for (const OptionRow& row : kOptions) {
    if (!(item & row.item) || !(this->*row.option)) continue;
    readMarkedChoice(row, row.selection);
    if (row.id == OptionId::cutEvery) {
      readMarkedChoice(rowOf(OptionId::autoCut), &OptionPDE13_v400_::mAutoCut_CutEvery_Selection);
    }
  }
}

// With nothing marked and no default it is the first choice, as that is what a save takes. An empty
// list leaves the selection as it is.
void OptionPDE13_v400_::readMarkedChoice(const OptionRow& row,
                                         PDEChoice* OptionPDE13_v400_::*selection) noexcept {
  const ChoiceList* choices = (this->*row.choices).get();
  if (!choices) {
    this->*selection = nullptr;
    return;
  }
  if (choices->empty()) return;
  const std::int64_t position = markedOrDefaultIndex(choices, row.keyword);
  this->*selection =
      (*choices)[static_cast<std::size_t>(std::max<std::int64_t>(position, 0))].get();
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

void OptionPDE13_v400_::selectPresetOfBoxes() noexcept {
  const PresetRow* preset = presetOfTag(targetPopUpButtonTag());
  if (!preset || !mOptionPopUpButton) return;
  // An entry that stayed selected would say what the boxes don't.
  if (!mOptionPopUpButton->selectItemWithTag(preset->tag)) mOptionPopUpButton->deselect();
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
