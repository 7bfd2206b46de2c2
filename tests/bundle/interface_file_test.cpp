// The panel on its real interface file, strings and pictures.
#include <map>

#include "bundle/textinput/PDEFormatter.h"
#include "platform/lib/DirectoryBundle.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class InterfaceFile : public PanelTest {
 protected:
  void makeRealPanel(const PpdText& text) {
    realBundle = DirectoryBundle::open(CUTLINE_BUILD_DIR "/lib/cutline/plugins/CutOptions.plugin");
    ASSERT_TRUE(realBundle);
    ppd = text.open();
    callback->ppd = ppd.get();
    panel = std::make_shared<OptionPDE13_v400_>();
    panel->initWithCallback(callback, realBundle);
    ASSERT_TRUE(panel->panelView());
  }

  std::shared_ptr<Bundle> realBundle;
};

TEST_F(InterfaceFile, ConnectsEveryOutletAndThePreview) {
  makeRealPanel(allNine());
  for (const OptionRow& row : kOptions) {
    ASSERT_TRUE(box(row.id)) << row.keyword;
    EXPECT_EQ(box(row.id)->ppdKeyword(), rowOf(row.switchedByBox).keyword);
    EXPECT_EQ(box(row.id)->frame().origin.x, 16);
  }
  EXPECT_TRUE(panel->mCutEveryTxBx);
  EXPECT_TRUE(panel->mCutEveryStpr);
  EXPECT_TRUE(panel->mCutEveryStr);
  EXPECT_TRUE(panel->mOptionPopUpButton);
  ASSERT_TRUE(panel->mOptionView);
  EXPECT_EQ(panel->mOptionView->nativeView()->superview(), panel->kPDEView.get());
  EXPECT_EQ(panel->mOptionView->nativeView()->frame().size, (Size{264, 84}));
  EXPECT_EQ(panel->kPDEView->frame().size.width, 560);
}

TEST_F(InterfaceFile, TheControlsActOnThePanel) {
  makeRealPanel(allNine());
  panel->willShow();
  click(OptionId::halfCut);
  EXPECT_EQ(marked("LxHalfCut"), "ON");
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  typeCount("12");
  EXPECT_EQ(marked("LxCutLabel"), "12");
  EXPECT_EQ(panel->mCutEveryStpr->intValue(), 12);
  ASSERT_TRUE(panel->mOptionPopUpButton->performSelection(14));
  EXPECT_EQ(box(OptionId::cutMark)->state(), CheckBox::kOn);
}

TEST_F(InterfaceFile, TheCountsFormatterLeavesClampingToThePanel) {
  makeRealPanel(allNine());
  panel->willShow();
  const auto* formatter = dynamic_cast<PDEFormatter*>(panel->mCutEveryTxBx->formatter());
  ASSERT_TRUE(formatter);
  EXPECT_EQ(formatter->formatString(), "%@");
  EXPECT_EQ(formatter->textStyle(), 0);
  EXPECT_EQ(formatter->maxLength(), 0);
  EXPECT_FALSE(formatter->isValidityMinValue());
  EXPECT_FALSE(formatter->isValidityMaxValue());
  box(OptionId::cutEvery)->setState(CheckBox::kOff);
  click(OptionId::cutEvery);
  for (const auto& [typed, count] : std::map<std::string, std::string>{
           {"0", "1"}, {"abc", "1"}, {"250", "99"}, {"-5", "1"}, {"あ", "1"}, {"42", "42"}}) {
    typeCount(typed);
    EXPECT_EQ(panel->mCutEveryTxBx->stringValue(), count) << typed;
    EXPECT_EQ(marked("LxCutLabel"), count) << typed;
  }
  EXPECT_EQ(platform.toolkit.beepCount(), 0);
}

TEST_F(InterfaceFile, EveryPresetHasItsPictureAndItsWords) {
  makeRealPanel(PpdText().attribute("LxTapeType", "WN"));
  EXPECT_FALSE(panel->mOptionPopUpButton->items().empty());
  makeRealPanel(allNine());
  for (const PopUpItem& item : panel->mOptionPopUpButton->items()) {
    const std::string& title = presetTitles()[static_cast<std::size_t>(item.tag) - 1];
    if (title.starts_with("CTMR")) continue;
    EXPECT_EQ(item.title, "");
    ASSERT_TRUE(item.imagePath) << title;
    EXPECT_TRUE(item.imagePath->ends_with("/" + title + ".svg")) << *item.imagePath;
    EXPECT_FALSE(item.accessibilityLabel.empty()) << title;
  }
}

// They say whether marks are printed, and leave a cutter as it is.
TEST_F(InterfaceFile, PresetsOfCutMarksShowCuttingByHandOnlyWithoutACutter) {
  for (const bool hasCutter : {false, true}) {
    PpdText ppd = PpdText().onOff("LxCutMark").onOff("LxChainPrint");
    if (hasCutter) ppd.onOff("LxAutoTapeCut");
    makeRealPanel(ppd);
    int presets = 0;
    for (const PopUpItem& item : panel->mOptionPopUpButton->items()) {
      if (!presetTitles()[static_cast<std::size_t>(item.tag) - 1].starts_with("CTMR")) continue;
      ++presets;
      EXPECT_EQ(item.imagePath.has_value(), !hasCutter) << item.tag;
      EXPECT_FALSE(item.accessibilityLabel.empty()) << item.tag;
    }
    EXPECT_GT(presets, 0);
  }
}

TEST_F(InterfaceFile, EveryPictureOfBothFamiliesIsThere) {
  makeRealPanel(allNine());
  for (const auto& image : panel->mOptionView->mOptionImgKM) EXPECT_TRUE(image);
  makeRealPanel(PpdText(allNine()).attribute("LxTapeType", "WN"));
  for (const auto& image : panel->mOptionView->mOptionImgWN) EXPECT_TRUE(image);
}

TEST_F(InterfaceFile, EveryTextOfThePanelIsTranslated) {
  makeRealPanel(allNine());
  std::vector<std::string> keys = {"OP_PANEL_NAME", "RS_Labels", "RS_Alrt_AutoCutWithHS",
                                   "RS_STitle_Yes", "RS_STitle_No"};
  for (const OptionRow& row : kOptions) {
    keys.emplace_back(row.titleKey);
    keys.emplace_back(row.summaryKey);
  }
  for (const std::string& key : keys) {
    const std::string text = realBundle->localizedStringForKey(key, std::nullopt, std::nullopt);
    EXPECT_NE(text, key);
    EXPECT_FALSE(text.empty()) << key;
  }
}

}  // namespace
}  // namespace cutline::test
