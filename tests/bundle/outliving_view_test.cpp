// A host may keep the view longer than the panel: none of its controls calls a panel that is gone.
#include "plain/PlainControls.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class OutlivingView : public PanelTest {
 protected:
  void SetUp() override {
    makePanelWithView(PpdText(allNine()).attribute("LxAutoCutObjHidden", "False"));
    panel->willShow();
    for (const OptionRow& row : kOptions) boxes.push_back(box(row.id));
    field = dynamic_cast<PlainTextField*>(panel->mCutEveryTxBx);
    stepper = dynamic_cast<PlainStepper*>(panel->mCutEveryStpr);
    popUp = panel->mOptionPopUpButton;
    stepper->setIntValue(5);
    callback->marks.clear();
    callback->asks.clear();
    panel.reset();
  }
  void TearDown() override {
    EXPECT_TRUE(callback->marks.empty());
    EXPECT_TRUE(callback->asks.empty());
  }

  std::vector<CheckBox*> boxes;
  PlainTextField* field = nullptr;
  PlainStepper* stepper = nullptr;
  PopUpButton* popUp = nullptr;
};

TEST_F(OutlivingView, NoBoxCalls) {
  for (CheckBox* each : boxes) {
    each->setEnabled(true);
    each->performClick();
  }
}

TEST_F(OutlivingView, TheNumberDoesNotCall) {
  field->setEnabled(true);
  field->typeText("7");
  field->pressReturn();
  stepper->setEnabled(true);
  stepper->performStep(+1);
  EXPECT_EQ(field->stringValue(), "7");
}

TEST_F(OutlivingView, ThePresetsDoNotCall) {
  for (CheckBox* each : boxes) each->setState(CheckBox::kOff);
  ASSERT_TRUE(popUp->performSelection(14));
  for (const CheckBox* each : boxes) EXPECT_EQ(each->state(), CheckBox::kOff);
}

}  // namespace
}  // namespace cutline::test
