// Boxes in the mixed state: for the rules and for saving special tape is on as long as it isn't
// off; for pictures, presets and choices a box is on only when it is ticked.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class MixedBoxes : public PanelTest {
 protected:
  void SetUp() override {
    makePanelWithView(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
    for (const OptionRow& row : kOptions) {
      box(row.id)->setHidden(false);
      box(row.id)->setState(CheckBox::kOff);
    }
  }
  void setCountEnabled(bool enabled) {
    panel->mCutEveryTxBx->setEnabled(enabled);
    panel->mCutEveryStpr->setEnabled(enabled);
  }
  bool countIsEnabled() const {
    return panel->mCutEveryTxBx->isEnabled() && panel->mCutEveryStpr->isEnabled();
  }
};

TEST_F(MixedBoxes, AMixedCutEveryBoxEnablesItsNumber) {
  box(OptionId::cutEvery)->setState(CheckBox::kMixed);
  setCountEnabled(false);
  panel->enabledCheck_OP();
  EXPECT_TRUE(countIsEnabled());
  panel->enabledCheck_OP();
  EXPECT_TRUE(countIsEnabled());
}

TEST_F(MixedBoxes, MixedSpecialTapeDisablesTheCuts) {
  box(OptionId::specialTape)->setState(CheckBox::kMixed);
  box(OptionId::cutEvery)->setState(CheckBox::kOn);
  setCountEnabled(true);
  panel->enabledCheck_OP();
  for (const OptionId id :
       {OptionId::cutEvery, OptionId::autoCut, OptionId::halfCut, OptionId::chainPrint}) {
    EXPECT_FALSE(box(id)->isEnabled()) << rowOf(id).keyword;
  }
  EXPECT_FALSE(countIsEnabled());
}

TEST_F(MixedBoxes, MixedSpecialTapeSavesTheCutsOff) {
  for (const OptionRow& row : kOptions) box(row.id)->setState(CheckBox::kOn);
  box(OptionId::specialTape)->setState(CheckBox::kMixed);
  EXPECT_EQ(panel->indexForSaveAutoChain(box(OptionId::halfCut)), 0);
  panel->saveSetting_HalfCut();
  panel->saveSetting_SpecialTape();
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxHalfCut", "OFF"}, {"LxSpecialTape", "OFF"}}));
}

TEST_F(MixedBoxes, AMixedBoxIsHandedOnAsItIsAndSavedAsTheFirstChoice) {
  box(OptionId::halfCut)->setState(CheckBox::kMixed);
  EXPECT_EQ(panel->indexForSaveAutoChain(box(OptionId::halfCut)), -1);
  panel->saveSetting_HalfCut();
  EXPECT_EQ(callback->marks, (std::vector<Mark>{{"LxHalfCut", "OFF"}}));
}

TEST_F(MixedBoxes, NoMixedBoxCountsForPictureOrPreset) {
  const auto pictureOfNone = panel->mOptionView->targetDrawImage();
  ASSERT_TRUE(pictureOfNone);
  box(OptionId::cutMark)->setHidden(true);
  for (const OptionRow& row : kOptions) {
    box(row.id)->setState(CheckBox::kMixed);
    EXPECT_EQ(panel->mOptionView->targetDrawImage(), pictureOfNone) << row.keyword;
    EXPECT_EQ(panel->targetPopUpButtonTag(), 4) << row.keyword;
  }
  box(OptionId::cutMark)->setHidden(false);
  EXPECT_EQ(panel->targetPopUpButtonTag(), 16);
}

TEST_F(MixedBoxes, MixedSpecialTapeLeavesTheCutsInThePicture) {
  box(OptionId::halfCut)->setState(CheckBox::kOn);
  box(OptionId::cutMark)->setHidden(true);
  const auto halfCut = panel->mOptionView->targetDrawImage();
  box(OptionId::specialTape)->setState(CheckBox::kMixed);
  EXPECT_EQ(panel->mOptionView->targetDrawImage(), halfCut);
  EXPECT_EQ(panel->targetPopUpButtonTag(), 6);
}

}  // namespace
}  // namespace cutline::test
