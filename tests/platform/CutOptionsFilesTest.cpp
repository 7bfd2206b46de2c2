// The interface file and the string table that the cut options bundle is delivered with.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "plain/PlainToolkit.h"
#include "platform/lib/InterfaceFile.h"
#include "platform/lib/ResourceFile.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/TextField.h"
#include "tests/platform/RecordingOwner.h"
#include "tests/platform/ToolkitScope.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

const std::filesystem::path kResources =
    std::filesystem::path(CUTLINE_SOURCE_DIR) / "bundle/resources";

std::optional<PropertyList> resource(const std::string& name) {
  const auto bytes = readResource(kResources / name);
  return bytes ? PropertyList::parseXML(*bytes) : std::nullopt;
}

class CutOptionsFiles : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(kResources, bundle.resources(), std::filesystem::copy_options::recursive);
    const test::ScopedEnvironment environment(test::languageEnvironment({}));
    opened = bundle.open();
    const ToolkitScope scope(&toolkit);
    ASSERT_TRUE(opened->loadNibNamed("OptionPDE", owner));
  }

  test::TemporaryBundle bundle;
  std::shared_ptr<Bundle> opened;
  PlainToolkit toolkit;
  RecordingOwner owner;
};

struct BoxRow {
  const char* outlet;
  const char* keyword;
  double y;
};

// From the top, one row every 26 points; the number stands in a row of its own.
constexpr BoxRow kBoxes[] = {
    {"mCutMarkChkBx", "LxCutMark", 246},
    {"mCutEveryChkBx", "LxAutoTapeCut", 220},
    {"mAutoCutChkBx", "LxAutoTapeCut", 168},
    {"mCutAndEndChkBx", "LxCutAtEnd", 142},
    {"mHalfCutChkBx", "LxHalfCut", 116},
    {"mSpecialTapeChkBx", "LxSpecialTape", 90},
    {"mChainPrintChkBx", "LxChainPrint", 64},
    {"mMirrorPrintChkBx", "LxMirror", 38},
    {"mRemoveBlkSpaceChkBx", "LxRemoveBlkSpace", 12},
};

TEST_F(CutOptionsFiles, HaveACheckBoxForEveryOption) {
  for (const auto& [name, keyword, y] : kBoxes) {
    const auto* box = owner.outlet<CheckBox>(name);
    ASSERT_TRUE(box) << name;
    EXPECT_EQ(box->ppdKeyword(), keyword) << name;
    EXPECT_EQ(box->frame(), (Rect{{16, y}, {256, 22}})) << name;
    EXPECT_EQ(box->title().find("RS_"), std::string::npos) << name;
  }
}

TEST_F(CutOptionsFiles, HaveTheNumberOfLabelsWithItsBounds) {
  ASSERT_TRUE(owner.outlet<TextField>("mCutEveryTxBx"));
  ASSERT_TRUE(owner.outlet<Label>("mCutEveryStr"));
  const auto* stepper = owner.outlet<Stepper>("mCutEveryStpr");
  ASSERT_TRUE(stepper);
  EXPECT_EQ(stepper->minValue(), 1);
  EXPECT_EQ(stepper->maxValue(), 99);
}

TEST_F(CutOptionsFiles, PairTitlesAndTagsOfThePresets) {
  const char* titles[] = {"EveryEndMirrorOffOffOff",
                          "EveryEndMirrorOffOnOff",
                          "EveryEndMirrorOnOffOff",
                          "AHCMOffOffOffOff",
                          "AHCMOffOffOnOff",
                          "AHCMOffOnOffOff",
                          "AHCMOffOnOnOff",
                          "AHCMOnOffOffOff",
                          "AHCMOnOffOnOff",
                          "AHCMOnOnOffOff",
                          "AHCMOnOnOnOff",
                          "SPMROnOff",
                          "CTMROnOffOff",
                          "CTMROnOnOff",
                          "CTMROffOnOff",
                          "CTMROffOffOff"};
  const auto* popUp = owner.outlet<PopUpButton>("mOptionPopUpButton");
  ASSERT_TRUE(popUp);
  const auto items = popUp->items();
  ASSERT_EQ(items.size(), std::size(titles));
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i].title, titles[i]);
    EXPECT_EQ(items[i].tag, static_cast<int>(i) + 1) << titles[i];
    EXPECT_TRUE(items[i].imagePath) << titles[i];
  }
}

TEST_F(CutOptionsFiles, TellPresetsOfOnePrinterFamilyApartInWords) {
  std::map<std::string, std::set<std::string>> wordsOfFamily;
  for (const PopUpItem& item : owner.outlet<PopUpButton>("mOptionPopUpButton")->items()) {
    const std::string family = item.title.starts_with("Every") ? "roll" : "tape";
    EXPECT_FALSE(item.accessibilityLabel.empty()) << item.title;
    EXPECT_EQ(item.accessibilityLabel.find("RS_"), std::string::npos) << item.title;
    EXPECT_TRUE(wordsOfFamily[family].insert(item.accessibilityLabel).second) << item.title;
  }
}

TEST_F(CutOptionsFiles, NameTheControlsThatShowNoText) {
  for (const char* name : {"mCutEveryTxBx", "mCutEveryStpr", "mOptionPopUpButton"}) {
    const std::string label = owner.outlet<View>(name)->accessibilityLabel();
    EXPECT_FALSE(label.empty()) << name;
    EXPECT_EQ(label.find("RS_"), std::string::npos) << name;
  }
}

TEST_F(CutOptionsFiles, ConnectEachControlToItsAction) {
  const auto runsWhenClicked = [&](const char* name) {
    owner.outlet<Button>(name)->performClick();
    return owner.calls.back();
  };
  for (const BoxRow& row : kBoxes) EXPECT_EQ(runsWhenClicked(row.outlet), "run changeOption:");
  EXPECT_TRUE(owner.outlet<PopUpButton>("mOptionPopUpButton")->performSelection(8));
  EXPECT_EQ(owner.calls.back(), "run changeOptionPopUpButton:");
}

TEST_F(CutOptionsFiles, KeepThePlaceholderFreeOfEveryOtherControl) {
  const auto* placeholder = owner.outlet<Button>("mOptionDummyView");
  ASSERT_TRUE(placeholder);
  EXPECT_EQ(placeholder->frame(), (Rect{{280, 154}, {264, 84}}));
  const Rect area = placeholder->frame();
  for (const auto& [name, view] : owner.outlets) {
    if (name == "kPDEView" || name == "mOptionDummyView") continue;
    const Rect frame = view->frame();
    const bool apart = frame.origin.x + frame.size.width <= area.origin.x ||
                       frame.origin.y >= area.origin.y + area.size.height ||
                       frame.origin.y + frame.size.height <= area.origin.y;
    EXPECT_TRUE(apart) << name;
  }
}

TEST_F(CutOptionsFiles, HaveAWordForEveryKeyThatThePanelAsksFor) {
  for (const char* key : {"OP_PANEL_NAME",
                          "RS_CutAtEvery",
                          "RS_Labels",
                          "RS_CutAtEnd",
                          "RS_MirrorPrinting",
                          "RS_AutoTapeCut",
                          "RS_HalfCut",
                          "RS_ChainPrinting",
                          "RS_SpecialTape",
                          "RS_RemoveBlkSpace",
                          "RS_CutMark",
                          "RS_Alrt_AutoCutWithHS",
                          "RS_STitle_CutLabels",
                          "RS_STitle_AutoTapeCut",
                          "RS_STitle_CutAtEnd",
                          "RS_STitle_HalfCut",
                          "RS_STitle_SpecialTape",
                          "RS_STitle_ChainPrint",
                          "RS_STitle_MirrorPrinting",
                          "RS_STitle_RemoveBlkSpace",
                          "RS_STitle_CutMark",
                          "RS_STitle_Yes",
                          "RS_STitle_No"}) {
    const std::string text = opened->localizedStringForKey(key, std::nullopt, std::nullopt);
    EXPECT_NE(text, key);
    EXPECT_FALSE(text.empty()) << key;
  }
}

TEST(CutOptionsInfo, NamesTheBundleAndItsPrincipalClass) {
  const auto info = resource("Info.plist");
  ASSERT_TRUE(info);
  EXPECT_EQ(*info->objectForKey("CFBundleIdentifier")->string(), "org.cutline.CutOptions");
  EXPECT_EQ(*info->objectForKey("NSPrincipalClass")->string(), "LXKMWNOptions14PlugIn13_v400_");
}

}  // namespace
}  // namespace cutline
