#include <gtest/gtest.h>

#include "plain/PlainCheckBox.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

class PlainCheckBoxTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    box->setAction(log.action());
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<CheckBox> box = toolkit.createCheckBox({});
};

TEST_F(PlainCheckBoxTest, AClickTurnsOffOnAndOnOff) {
  EXPECT_EQ(box->state(), CheckBox::kOff);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOff);
  EXPECT_EQ(log.lines.size(), 4U);
}

TEST_F(PlainCheckBoxTest, AClickTurnsMixedOn) {
  box->setState(CheckBox::kMixed);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOn);
}

TEST_F(PlainCheckBoxTest, TheActionSeesTheNewState) {
  int seen = CheckBox::kMixed;
  box->setAction([&](View*) { seen = box->state(); });
  box->performClick();
  EXPECT_EQ(seen, CheckBox::kOn);
}

TEST_F(PlainCheckBoxTest, SettingRunsNoAction) {
  box->setState(CheckBox::kOn);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainCheckBoxTest, ADisabledBoxKeepsItsState) {
  box->setEnabled(false);
  box->performClick();
  EXPECT_EQ(box->state(), CheckBox::kOff);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainCheckBoxTest, AnyOtherNumberStandsForTheStateOfItsSign) {
  box->setState(7);
  EXPECT_EQ(box->state(), CheckBox::kOn);
  box->setState(-7);
  EXPECT_EQ(box->state(), CheckBox::kMixed);
}

TEST_F(PlainCheckBoxTest, KeepsItsKeyword) {
  EXPECT_EQ(box->ppdKeyword(), "");
  box->setPPDKeyword("LxHalfCut");
  EXPECT_EQ(box->ppdKeyword(), "LxHalfCut");
}

}  // namespace
}  // namespace cutline
