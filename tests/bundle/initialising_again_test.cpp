// Initialisers clear what an object held before, and don't rely on its being new.
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

using InitialisingAgain = PanelTest;

TEST_F(InitialisingAgain, ThePanelForgetsKeywordsNameAndPPD) {
  makePanel(allNine());
  panel->supportedPPDOptionKeys();
  panel->panelName();
  ASSERT_TRUE(panel->thePDEName);
  ASSERT_TRUE(panel->initWithCallback(nullptr, bundle));
  EXPECT_FALSE(panel->supportedOptions());
  EXPECT_FALSE(panel->thePDEName);
  EXPECT_EQ(panel->ppd, nullptr);
  EXPECT_EQ(panel->mMirror_Option, nullptr);
  EXPECT_FALSE(panel->mMirror_Choices);
}

TEST_F(InitialisingAgain, ThePanelForgetsTheDeviceURI) {
  makePanel(PpdText());
  ASSERT_STRNE(panel->deviceURI, "");
  callback->printer.uri.reset();
  panel->initWithCallback(callback, bundle);
  EXPECT_STREQ(panel->deviceURI, "");
}

TEST_F(InitialisingAgain, ThePanelForgetsItsFlagsAndSelections) {
  callback->printer.uri = "usb://x";
  makePanelWithView(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
  panel->willShow();
  panel->setPDEItems2();
  panel->setTapeState(1);
  panel->column_dec = 1;
  panel->checkValues_dec = false;
  ASSERT_EQ(panel->mAutoCutHideKey_dec, 1);
  ASSERT_EQ(panel->usb_dec, 1);

  callback->printer.uri = "ipp://x";
  const OpenPpd other = allNine().open();
  callback->ppd = other.get();
  panel->initWithCallback(callback, bundle);
  EXPECT_EQ(panel->usb_dec, 0);
  EXPECT_EQ(panel->mAutoCutHideKey_dec, 0);
  EXPECT_EQ(panel->set_formatSetting, 0);
  EXPECT_EQ(panel->column_dec, 0);
  EXPECT_EQ(panel->getTapeState(), 0);
  EXPECT_TRUE(panel->checkValues_dec);
  EXPECT_FALSE(panel->mOptionView);
  for (const OptionRow& row : kOptions) {
    EXPECT_EQ((*panel).*row.selection, nullptr) << row.keyword;
  }
  EXPECT_EQ(panel->mAutoCut_CutEvery_Selection, nullptr);
  panel.reset();
}

TEST_F(InitialisingAgain, ThePreviewForgetsItsBoxes) {
  makePanelWithView(allNine());
  OptionView13_v400_& preview = *panel->mOptionView;
  for (const OptionRow& row : kOptions) (preview.*row.showBoxInPreview)(box(row.id));
  ASSERT_TRUE(preview.initWithFrame({}, bundle.get(), true));
  EXPECT_TRUE(preview.isWN());
  for (const CheckBox* each :
       {preview.mCutEveryChkBx, preview.mCutAndEndChkBx, preview.mMirrorPrintChkBx,
        preview.mAutoCutChkBx, preview.mHalfCutChkBx, preview.mChainPrintChkBx,
        preview.mSpecialTapeChkBx, preview.mRemoveBlkSpaceChkBx, preview.mCutMarkChkBx}) {
    EXPECT_EQ(each, nullptr);
  }
}

}  // namespace
}  // namespace cutline::test
