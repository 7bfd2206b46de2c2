#include <gtest/gtest.h>

#include <limits>

#include "plain/PlainStepper.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

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
