#include <gtest/gtest.h>

#include <limits>

#include "plain/PlainControls.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

class PlainButtonTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    button->setAction(log.action());
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<Button> button = toolkit.createButton({});
};

TEST_F(PlainButtonTest, AClickRunsTheActionAndThenTellsTheObserver) {
  button->performClick();
  EXPECT_EQ(log.lines, kActedAndFinished);
  EXPECT_EQ(log.acted, button.get());
  EXPECT_EQ(log.finished, button.get());
}

TEST_F(PlainButtonTest, ADisabledButtonDoesNothing) {
  button->setEnabled(false);
  button->performClick();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, HidingDoesNotDisable) {
  button->setHidden(true);
  EXPECT_TRUE(button->isEnabled());
}

TEST_F(PlainButtonTest, WithoutAnActionThereIsNothingToFinish) {
  button->setAction({});
  button->performClick();
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, ANewActionReplacesTheOldOneAlsoWhileItRuns) {
  button->setAction([&](View*) {
    button->setAction({});
    log.lines.emplace_back("own");
  });
  button->performClick();
  button->performClick();
  EXPECT_EQ(log.lines, (std::vector<std::string>{"own", "finished"}));
}

TEST_F(PlainButtonTest, AControlThatGoesInItsOwnActionIsNotReported) {
  button->setAction([&](View*) { button.reset(); });
  button->performClick();
  EXPECT_FALSE(button);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainButtonTest, WithoutAnObserverTheActionStillRuns) {
  toolkit.setActionObserver(nullptr);
  button->performClick();
  EXPECT_EQ(log.lines, std::vector<std::string>{"action"});
}

TEST(PlainButton, MayOutliveItsToolkit) {
  ActionLog log;
  auto toolkit = std::make_unique<PlainToolkit>();
  toolkit->setActionObserver(&log);
  const auto button = toolkit->createButton({});
  button->setAction(log.action());
  toolkit.reset();
  button->performClick();
  EXPECT_EQ(log.lines, std::vector<std::string>{"action"});
}

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

class PlainStepperTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    stepper->setRange(1, 99);
    stepper->setAction(log.action());
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<PlainStepper> stepper =
      std::dynamic_pointer_cast<PlainStepper>(toolkit.createStepper({}));
};

TEST_F(PlainStepperTest, StepsByOneAndRunsTheAction) {
  stepper->setIntValue(5);
  stepper->performStep(+1);
  EXPECT_EQ(stepper->intValue(), 6);
  EXPECT_EQ(log.lines, kActedAndFinished);
  stepper->performStep(-1);
  EXPECT_EQ(stepper->intValue(), 5);
}

TEST_F(PlainStepperTest, StopsAtBothEndsWithoutAnAction) {
  stepper->setIntValue(99);
  stepper->performStep(+1);
  EXPECT_EQ(stepper->intValue(), 99);
  stepper->setIntValue(1);
  stepper->performStep(-1);
  EXPECT_EQ(stepper->intValue(), 1);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainStepperTest, AValueOutsideTheRangeGivesTheNearestBound) {
  stepper->setIntValue(250);
  EXPECT_EQ(stepper->intValue(), 99);
  stepper->setIntValue(0);
  EXPECT_EQ(stepper->intValue(), 1);
}

TEST_F(PlainStepperTest, ANewRangeBringsTheValueIntoIt) {
  stepper->setIntValue(50);
  stepper->setRange(2, 10);
  EXPECT_EQ(stepper->intValue(), 10);
  EXPECT_EQ(stepper->minValue(), 2);
  EXPECT_EQ(stepper->maxValue(), 10);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainStepperTest, StepsToTheEndsOfTheNumbersWithoutOverflow) {
  using Limits = std::numeric_limits<int>;
  stepper->setRange(Limits::min(), Limits::max());
  stepper->setIntValue(Limits::max());
  stepper->performStep(+1);
  EXPECT_EQ(stepper->intValue(), Limits::max());
}

TEST_F(PlainStepperTest, ADisabledStepperDoesNotStep) {
  stepper->setIntValue(5);
  stepper->setEnabled(false);
  stepper->performStep(+1);
  EXPECT_EQ(stepper->intValue(), 5);
  EXPECT_TRUE(log.lines.empty());
}

}  // namespace
}  // namespace cutline
