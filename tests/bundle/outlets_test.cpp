// The outlets and actions that the interface file may name.
#include <set>

#include "platform/lib/PropertyList.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class Outlets : public PanelTest {
 protected:
  Outlets() { makePanel(allNine()); }
};

TEST_F(Outlets, EachStoresAControlOfItsKind) {
  TestToolkit& toolkit = platform.toolkit;
  const auto checkBox = toolkit.createCheckBox({});
  const auto button = toolkit.createButton({});
  const auto popUp = toolkit.createPopUpButton({});
  const auto field = toolkit.createTextField({});
  const auto stepper = toolkit.createStepper({});
  const auto label = toolkit.createLabel({});
  const std::vector<std::pair<std::string, std::shared_ptr<View>>> outlets = {
      {"mOptionDummyView", button},    {"mOptionPopUpButton", popUp},
      {"mCutEveryChkBx", checkBox},    {"mCutAndEndChkBx", checkBox},
      {"mMirrorPrintChkBx", checkBox}, {"mAutoCutChkBx", checkBox},
      {"mHalfCutChkBx", checkBox},     {"mChainPrintChkBx", checkBox},
      {"mSpecialTapeChkBx", checkBox}, {"mRemoveBlkSpaceChkBx", checkBox},
      {"mCutMarkChkBx", checkBox},     {"mCutEveryTxBx", field},
      {"mCutEveryStpr", stepper},      {"mCutEveryStr", label}};
  for (const auto& [name, control] : outlets) {
    EXPECT_FALSE(panel->connectOutlet(name, toolkit.createView({}))) << name;
    EXPECT_FALSE(panel->connectOutlet(name, nullptr)) << name;
    EXPECT_TRUE(panel->connectOutlet(name, control)) << name;
  }
  EXPECT_EQ(panel->mOptionDummyView, button.get());
  EXPECT_EQ(panel->mOptionPopUpButton, popUp.get());
  EXPECT_EQ(panel->mCutEveryTxBx, field.get());
  EXPECT_EQ(panel->mCutEveryStpr, stepper.get());
  EXPECT_EQ(panel->mCutEveryStr, label.get());
  for (const OptionRow& row : kOptions) EXPECT_EQ((*panel).*row.checkBox, checkBox.get());
}

TEST_F(Outlets, AWrongKindLeavesTheFieldAsItIs) {
  const auto box = platform.toolkit.createCheckBox({});
  panel->connectOutlet("mMirrorPrintChkBx", box);
  EXPECT_FALSE(panel->connectOutlet("mMirrorPrintChkBx", platform.toolkit.createLabel({})));
  EXPECT_EQ(panel->mMirrorPrintChkBx, box.get());
}

TEST_F(Outlets, TheViewIsTheBasePanels) {
  const auto view = platform.toolkit.createView({});
  EXPECT_TRUE(panel->connectOutlet("kPDEView", view));
  EXPECT_EQ(panel->kPDEView, view);
  EXPECT_FALSE(panel->connectOutlet("mUnknown", view));
}

TEST_F(Outlets, ThereAreThreeActions) {
  EXPECT_TRUE(panel->actionNamed("changeOption:"));
  EXPECT_TRUE(panel->actionNamed("changeOptionPopUpButton:"));
  EXPECT_TRUE(panel->actionNamed("changeCutEveryValue:"));
  EXPECT_FALSE(panel->actionNamed("changeOption"));
  EXPECT_FALSE(panel->actionNamed("other:"));
}

}  // namespace
}  // namespace cutline::test
