// From the marked choices to the selections, and from those to the controls.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class Refresh : public PanelTest {
 protected:
  PDEChoice* selection(OptionId id) const { return (*panel).*rowOf(id).selection; }
  void select(OptionId id, std::size_t index) {
    (*panel).*rowOf(id).selection = (*((*panel).*rowOf(id).choices))[index].get();
  }
  static std::string nameOf(PDEChoice* choice) {
    return choice ? choice->ppdTitle().value_or("(nil)") : "(none)";
  }
};

TEST_F(Refresh, ReadsTheMarkedChoiceOfEachItemAlone) {
  for (const OptionRow& row : kOptions) {
    makePanel(allNine());
    const std::string choice = row.id == OptionId::cutEvery ? "42" : "ON";
    ppdMarkOption(ppd.get(), row.keyword, choice.c_str());
    panel->updateMarkedSelections(row.item);
    for (const OptionRow& other : kOptions) {
      EXPECT_EQ(nameOf(selection(other.id)), other.id == row.id ? choice : "(none)");
    }
    EXPECT_EQ(nameOf(panel->mAutoCut_CutEvery_Selection),
              row.id == OptionId::cutEvery ? "OFF" : "(none)");
  }
}

TEST_F(Refresh, ReadsSeveralItemsAtOnceAndIgnoresOtherBits) {
  makePanel(allNine());
  panel->updateMarkedSelections(kItemMirror | kItemCutMark | kItemOptionPopUp | 0x8000U | 1U);
  EXPECT_EQ(nameOf(panel->mMirror_Selection), "OFF");
  EXPECT_EQ(nameOf(panel->mCutMark_Selection), "OFF");
  EXPECT_EQ(nameOf(panel->mHalfCut_Selection), "(none)");
}

TEST_F(Refresh, TheCutEveryItemReadsAutoCutIntoASelectionOfItsOwn) {
  makePanel(allNine());
  ppdMarkOption(ppd.get(), "LxAutoTapeCut", "ON");
  panel->updateMarkedSelections(kItemCutEvery);
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, (*panel->mAutoCut_Choices)[1].get());
  EXPECT_EQ(panel->mAutoCut_Selection, nullptr);
}

TEST_F(Refresh, WithoutAutoCutItsSelectionIsAbsent) {
  makePanel(PpdText().cutLabel(1, 3, "2"));
  const auto stray = PDEChoice::choiceWithChoice(nullptr);
  panel->mAutoCut_CutEvery_Selection = stray.get();
  panel->updateMarkedSelections(kItemCutEvery);
  EXPECT_EQ(nameOf(panel->mCutEvery_Selection), "2");
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, nullptr);
}

TEST_F(Refresh, WithoutCutLabelNeitherIsRead) {
  makePanel(PpdText().onOff("LxAutoTapeCut"));
  panel->updateMarkedSelections(kItemCutEvery);
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, nullptr);
}

TEST_F(Refresh, NothingMarkedTakesTheDefault) {
  makePanel(PpdText().onOff("LxMirror", "ON").openUnmarked());
  panel->updateMarkedSelections(kItemMirror);
  EXPECT_EQ(nameOf(panel->mMirror_Selection), "ON");
}

TEST_F(Refresh, AMarkThatTheListLacksTakesTheFirst) {
  makePanel(PpdText().option("LxMirror", {"A", "B", "C"}, "C"));
  panel->mMirror_Choices->pop_back();
  panel->updateMarkedSelections(kItemMirror);
  EXPECT_EQ(nameOf(panel->mMirror_Selection), "A");
}

TEST_F(Refresh, NothingMarkedAndNoDefaultTakesTheFirstAsASaveDoes) {
  makePanel(PpdText().onOff("LxMirror", "NONE").openUnmarked());
  select(OptionId::mirror, 1);
  panel->updateMarkedSelections(kItemMirror);
  EXPECT_EQ(nameOf(panel->mMirror_Selection), "OFF");
  panel->saveSetting_Mirror();
  EXPECT_EQ(marked("LxMirror"), "OFF");
}

TEST_F(Refresh, AnEmptyListKeepsTheSelection) {
  makePanel(PpdText().option("LxMirror", {}, ""));
  panel->updateMarkedSelections(kItemMirror);
  EXPECT_EQ(panel->mMirror_Selection, nullptr);
}

TEST_F(Refresh, AnAbsentOptionsSelectionIsNotTouched) {
  makePanel(PpdText().onOff("LxMirror"));
  const auto stray = PDEChoice::choiceWithChoice(nullptr);
  panel->mHalfCut_Selection = stray.get();
  panel->updateMarkedSelections(kItemHalfCut);
  EXPECT_EQ(panel->mHalfCut_Selection, stray.get());
}

TEST_F(Refresh, BoxesTakeTheSelectionsPosition) {
  makePanelWithView(allNine());
  for (const OptionRow& row : kOptions) {
    if (row.id == OptionId::cutEvery) continue;
    for (const std::size_t position : {1U, 0U}) {
      select(row.id, position);
      box(row.id)->setEnabled(true);
      panel->updateUIItem(row.item);
      EXPECT_EQ(box(row.id)->state(), static_cast<int>(position)) << row.keyword;
    }
  }
  EXPECT_TRUE(callback->marks.empty());
}

TEST_F(Refresh, AStrangeOrAbsentSelectionLeavesTheBoxAlone) {
  makePanelWithView(allNine());
  const auto twin = PDEChoice::choiceWithChoice((*panel->mMirror_Choices)[0]->choice());
  for (PDEChoice* strange : {static_cast<PDEChoice*>(nullptr), twin.get()}) {
    panel->mMirror_Selection = strange;
    box(OptionId::mirror)->setState(CheckBox::kOn);
    panel->updateUIItem(kItemMirror);
    EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOn) << "equal names don't count";
  }
}

TEST_F(Refresh, BlankSpaceAndCutMarkFollowOnlyWhileEnabled) {
  for (const OptionId id : {OptionId::removeBlkSpace, OptionId::cutMark}) {
    makePanelWithView(allNine());
    select(id, 1);
    box(id)->setEnabled(false);
    panel->updateUIItem(rowOf(id).item);
    EXPECT_EQ(box(id)->state(), CheckBox::kOff) << rowOf(id).keyword;
    box(id)->setEnabled(true);
    panel->updateUIItem(rowOf(id).item);
    EXPECT_EQ(box(id)->state(), CheckBox::kOn) << rowOf(id).keyword;
  }
}

TEST_F(Refresh, OtherBoxesFollowWhileDisabled) {
  makePanelWithView(allNine());
  select(OptionId::halfCut, 1);
  box(OptionId::halfCut)->setEnabled(false);
  panel->updateUIItem(kItemHalfCut);
  EXPECT_EQ(box(OptionId::halfCut)->state(), CheckBox::kOn);
}

TEST_F(Refresh, TheNumberIsTheChoicesName) {
  makePanelWithView(allNine());
  select(OptionId::cutEvery, 11);
  panel->mAutoCut_CutEvery_Selection = (*panel->mAutoCut_Choices)[1].get();
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), "12");
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 12);
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOn);
}

TEST_F(Refresh, AStrangeNumberLeavesFieldAndStepperButNotTheBox) {
  makePanelWithView(allNine());
  const auto twin = PDEChoice::choiceWithChoice((*panel->mCutEvery_Choices)[4]->choice());
  panel->mCutEvery_Selection = twin.get();
  panel->mAutoCut_CutEvery_Selection = (*panel->mAutoCut_Choices)[1].get();
  panel->mCutEveryTxBx->setStringValue("7");
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), "7");
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOn);
}

TEST_F(Refresh, WithoutAutoCutTheCutEveryBoxIsSetOff) {
  makePanelWithView(PpdText().cutLabel(1, 9, "3"));
  panel->updateMarkedSelections(kItemCutEvery);
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOff);
}

TEST_F(Refresh, AnUnreadAutoCutLeavesTheCutEveryBoxAlone) {
  makePanelWithView(allNine());
  select(OptionId::cutEvery, 2);
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  panel->updateUIItem(kItemCutEvery);
  EXPECT_EQ(box(OptionId::cutEvery)->state(), CheckBox::kOn);
  EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), "3");
}

TEST_F(Refresh, EveryRefreshAlignsThePresetRunsTheRulesAndRedraws) {
  makePanelWithView(PpdText().onOff("LxHalfCut").onOff("LxChainPrint").onOff("LxSpecialTape"));
  panel->setPDEItems2();
  clearPreviewNeedsDisplay();
  box(OptionId::specialTape)->setState(CheckBox::kOn);
  panel->updateUIItem(0);
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 12);
  EXPECT_FALSE(box(OptionId::halfCut)->isEnabled());
  EXPECT_TRUE(previewNeedsDisplay());
  box(OptionId::specialTape)->setState(CheckBox::kOff);
  select(OptionId::halfCut, 1);
  select(OptionId::chainPrint, 1);
  panel->updateUIItem(kItemHalfCut | kItemChainPrint);
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 7) << "both boxes in one call";
}

TEST_F(Refresh, ThePresetItemIgnoresEveryOtherBit) {
  makePanelWithView(allNine());
  panel->setPDEItems2();
  select(OptionId::cutEnd, 1);
  ASSERT_TRUE(panel->mOptionPopUpButton->selectItemWithTag(13));
  clearPreviewNeedsDisplay();
  panel->updateUIItem(kItemOptionPopUp | kItemCutEnd);
  EXPECT_EQ(box(OptionId::cutEnd)->state(), CheckBox::kOff);
  EXPECT_EQ(box(OptionId::cutMark)->state(), CheckBox::kOn);
  EXPECT_TRUE(previewNeedsDisplay());
}

// A panel whose boxes fit no preset.
class UntaggedPanel : public OptionPDE13_v400_ {
 public:
  int targetPopUpButtonTag() const noexcept override { return tag; }
  int tag = 0;
};

TEST_F(Refresh, ATagOutsideTheTableSelectsNoEntry) {
  ppd = allNine().open();
  callback->ppd = ppd.get();
  UntaggedPanel untagged;
  untagged.initWithCallback(callback, bundle);
  ASSERT_TRUE(untagged.panelView());
  const int before = untagged.mOptionPopUpButton->selectedTag();
  for (const int tag : {0, 17, -1}) {
    untagged.tag = tag;
    untagged.mOptionPopUpButton->addItem({"", tag, {}, ""});
    untagged.mSpecialTapeChkBx->setState(CheckBox::kOn);
    untagged.mHalfCutChkBx->setEnabled(true);
    untagged.updateUIItem(kItemMirror);
    EXPECT_EQ(untagged.mOptionPopUpButton->selectedTag(), before) << tag;
    EXPECT_FALSE(untagged.mHalfCutChkBx->isEnabled()) << "the rules run all the same";
  }
}

TEST_F(Refresh, RestoringReadsTheMarksAndShowsThem) {
  showPanel(PpdText().onOff("LxCutAtEnd").onOff("LxHalfCut").onOff("LxSpecialTape"));
  ppdMarkOption(ppd.get(), "LxHalfCut", "ON");
  ppdMarkOption(ppd.get(), "LxCutAtEnd", "ON");
  EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
  EXPECT_EQ(box(OptionId::halfCut)->state(), CheckBox::kOn);
  EXPECT_EQ(box(OptionId::cutEnd)->state(), CheckBox::kOn);
  EXPECT_EQ(panel->mOptionPopUpButton->selectedTag(), 6);
}

// The full refresh ends with the preset, which knows no mirror.
TEST_F(Refresh, AFullRefreshClearsTheMirrorBox) {
  showPanel(PpdText().onOff("LxMirror", "ON"));
  EXPECT_EQ(marked("LxMirror"), "ON");
  EXPECT_EQ(nameOf(panel->mMirror_Selection), "ON");
  EXPECT_EQ(box(OptionId::mirror)->state(), CheckBox::kOff);
}

}  // namespace
}  // namespace cutline::test
