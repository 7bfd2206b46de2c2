// A label is set up and printed with nothing but the accessibility bus.
#include "host/core/CommandLine.h"
#include "tests/access/ScreenReaderTest.h"
#include "tests/support/waiting.h"

namespace cutline::test {
namespace {

class PrintingByBus : public ScreenReaderTest {};

TEST_F(PrintingByBus, HalfCutAndCutEveryThreeReachThePrinter) {
  startDialog("tape24");
  std::fputs(describeTree(dialog()).c_str(), stderr);
  const Accessible halfCut = box("Half cut between labels");
  ASSERT_FALSE(halfCut.is(ATSPI_STATE_CHECKED));
  EXPECT_EQ(picture(), "Auto cut on, no half cut, not mirrored");
  ASSERT_TRUE(halfCut.press());
  EXPECT_TRUE(waitUntil([&] { return halfCut.is(ATSPI_STATE_CHECKED); }));
  EXPECT_TRUE(waitUntil([&] { return summary("Half cut between labels") == "Yes"; }));
  EXPECT_EQ(picture(), "Auto cut on, half cut between labels, not mirrored");
  ASSERT_TRUE(count().setText("3"));
  EXPECT_TRUE(waitUntil([&] { return summary("Cut automatically after every") == "3 label(s)"; }));
  EXPECT_EQ(stepper().value(), 3);
  ASSERT_TRUE(control(ATSPI_ROLE_PUSH_BUTTON, "Print").press());
  EXPECT_EQ(exitStatus(), kExitDone);
  const PrintedJob job = newJob();
  EXPECT_EQ(job.options().at("LxHalfCut"), "ON");
  EXPECT_EQ(job.options().at("LxCutLabel"), "3");
  EXPECT_EQ(job.number("labels"), kLabels);
}

}  // namespace
}  // namespace cutline::test
