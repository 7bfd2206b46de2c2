// A job is set up and printed with nothing but the accessibility bus.
#include "host/core/CommandLine.h"
#include "tests/access/ScreenReaderTest.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

class PrintingByBus : public ScreenReaderTest {
 protected:
  void printAndClose(const char* print) {
    ASSERT_TRUE(button(print).press());
    EXPECT_TRUE(button("Print again").is(ATSPI_STATE_SHOWING));
    ASSERT_TRUE(button("Close").press());
    EXPECT_EQ(exitStatus(), kExitDone);
  }
};

// The cut-every box stands ticked by the printer's default.
TEST_F(PrintingByBus, HalfCutAndCutEveryThreeReachThePrinter) {
  startDialog("tape24");
  const Accessible halfCut = box("Half cut between labels");
  EXPECT_FALSE(halfCut.is(ATSPI_STATE_CHECKED));
  EXPECT_TRUE(box("Cut automatically after every").is(ATSPI_STATE_CHECKED));
  EXPECT_EQ(picture(), "Auto cut on, no half cut, not mirrored");
  ASSERT_TRUE(halfCut.press());
  EXPECT_TRUE(waitUntil([&] { return halfCut.is(ATSPI_STATE_CHECKED); }));
  ASSERT_TRUE(count().setText("3"));
  EXPECT_TRUE(waitUntil([&] { return stepper().value() == 3; }));
  EXPECT_EQ(picture(), "Auto cut on, half cut between labels, not mirrored");
  EXPECT_EQ(summary("Half cut between labels"), "Yes");
  EXPECT_EQ(summary("Cut automatically after every"), "3 label(s)");
  printAndClose("Print 12 labels");
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(job.options().at("LxCutLabel"), "3");
  EXPECT_EQ(job.options().at("LxAutoTapeCut"), "ON");
  EXPECT_EQ(job.number("labels"), kLabels);
}

TEST_F(PrintingByBus, TheStepperSetsTheNumberToo) {
  startDialog("roll62");
  const Accessible arrows = stepper();
  EXPECT_EQ(arrows.value(), 1);
  EXPECT_EQ(arrows.minimum(), 1);
  EXPECT_EQ(arrows.maximum(), 99);
  ASSERT_TRUE(arrows.setValue(5));
  EXPECT_TRUE(waitUntil([&] { return count().text() == "5"; }));
  EXPECT_EQ(summary("Cut automatically after every"), "5 label(s)");
  printAndClose("Print 12 labels");
  EXPECT_EQ(newJob().options().at("LxCutLabel"), "5");
}

TEST_F(PrintingByBus, CopiesAndPagesReachThePrinter) {
  startDialog("roll62");
  ASSERT_TRUE(control(ATSPI_ROLE_TEXT, "Pages").setText("2-3"));
  ASSERT_TRUE(control(ATSPI_ROLE_SPIN_BUTTON, "Copies").setValue(2));
  printAndClose("Print 4 labels");
  EXPECT_EQ(newJob().number("labels"), 4);
}

TEST_F(PrintingByBus, CancelPrintsNothing) {
  startDialog("tapeb");
  ASSERT_TRUE(button("Cancel").press());
  EXPECT_EQ(exitStatus(), kExitCancelled);
  EXPECT_TRUE(nothingNew());
}

}  // namespace
}  // namespace cutline::test
