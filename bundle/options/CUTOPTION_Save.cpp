// Turns the controls into PPD choices, which the host marks. The names handed on are always copied
// from the PPD's own choice list.
#include <algorithm>

#include "bundle/controls/nil_controls.h"
#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"
#include "bundle/ppd/text_bytes.h"

namespace cutline {
namespace {

// The keyword of the list's choice at the index, or of the nearest one; nothing for no choices.
std::optional<std::string> choiceNameNear(std::int64_t index, const ChoiceList* choices) noexcept {
  if (!choices || choices->empty()) return std::nullopt;
  const auto last = static_cast<std::int64_t>(choices->size()) - 1;
  const auto& choice =
      (*choices)[static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, last))];
  return decodedText(choice->choice()->choice, TextEncoding::utf8);
}

}  // namespace

void OptionPDE13_v400_::saveSetting_CutAtEnd() noexcept { saveOption(rowOf(OptionId::cutEnd)); }
void OptionPDE13_v400_::saveSetting_Mirror() noexcept { saveOption(rowOf(OptionId::mirror)); }
void OptionPDE13_v400_::saveSetting_HalfCut() noexcept { saveOption(rowOf(OptionId::halfCut)); }
void OptionPDE13_v400_::saveSetting_ChainPrint() noexcept {
  saveOption(rowOf(OptionId::chainPrint));
}
void OptionPDE13_v400_::saveSetting_SpecialTape() noexcept {
  saveOption(rowOf(OptionId::specialTape));
}
void OptionPDE13_v400_::saveSetting_CutMark() noexcept { saveOption(rowOf(OptionId::cutMark)); }

// Without a box of its own automatic cutting is saved with the cut-every group.
void OptionPDE13_v400_::saveSetting_AutoCut() noexcept {
  if (mAutoCutHideKey_dec == 1) saveOption(rowOf(OptionId::autoCut));
}

// The state is saved even when the tape has just disabled the box.
void OptionPDE13_v400_::saveSetting_RemoveBlkSpace() noexcept {
  refreshTapeState();
  saveOption(rowOf(OptionId::removeBlkSpace));
}

void OptionPDE13_v400_::saveOption(const OptionRow& row) noexcept {
  const ChoiceList* choices = (this->*row.choices).get();
  if (!choices || !printSettings) return;
  tellHost((this->*row.option)->keyword, choiceNameNear(indexToSave(row), choices));
}

std::int64_t OptionPDE13_v400_::indexToSave(const OptionRow& row) const noexcept {
  const CheckBox* box = this->*row.checkBox;
  if (!box) return markedOrDefaultIndex((this->*row.choices).get(), (this->*row.option)->keyword);
  return row.savedOffUnderSpecialTape ? indexForSaveAutoChain(box) : box->state();
}

// The number shown was marked when it was entered, so the marked choice is handed on again; without
// the number's field an unmarked option takes its default.
void OptionPDE13_v400_::saveSetting_CutLabel() noexcept {
  if (!mCutEvery_Choices || !printSettings) return;
  const char* keyword = mCutEvery_Option->keyword;
  const std::int64_t index = mCutEveryTxBx ? indexOfMarkedOption(mCutEvery_Choices.get(), keyword)
                                           : markedOrDefaultIndex(mCutEvery_Choices.get(), keyword);
  const auto choice = choiceNameNear(index, mCutEvery_Choices.get());
  if (mAutoCutHideKey_dec == 0 && mAutoCut_Option) saveAutoCutWithCutEvery();
  tellHost(keyword, choice);
}

void OptionPDE13_v400_::saveAutoCutWithCutEvery() noexcept {
  const char* keyword = mAutoCut_Option->keyword;
  const std::int64_t index = mCutEveryTxBx ? indexForSaveAutoChain(mCutEveryChkBx)
                                           : markedOrDefaultIndex(mAutoCut_Choices.get(), keyword);
  tellHost(keyword, index == 1 ? kOn : kOff);
}

std::int64_t OptionPDE13_v400_::markedOrDefaultIndex(const ChoiceList* choices,
                                                     const char* keyword) const noexcept {
  const std::int64_t marked = indexOfMarkedOption(choices, keyword);
  return marked == -1 ? indexOfDefaultOption(choices) : marked;
}

std::int32_t OptionPDE13_v400_::indexForSaveAutoChain(const Control* control) const noexcept {
  const auto* box = dynamic_cast<const CheckBox*>(control);
  if (!box) return 0;
  if (!isHidden(mSpecialTapeChkBx) && stateOf(mSpecialTapeChkBx) != CheckBox::kOff) return 0;
  return box->state();
}

void OptionPDE13_v400_::tellHost(const char* keyword,
                                 const std::optional<std::string>& choice) noexcept {
  const auto key = decodedText(keyword, TextEncoding::utf8);
  if (!key || !choice || !pdePluginCallbackObject) return;
  pdePluginCallbackObject->willChangePPDOptionKeyValue(*key, choice);
}

}  // namespace cutline
