#include <gtest/gtest.h>

#include "plain/PlainControls.h"
#include "plain/PlainPopUpButton.h"
#include "plain/PlainTextField.h"
#include "plain/PlainToolkit.h"
#include "plain/PlainView.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

TEST(PlainToolkit, MakesControlsWithTheirFrameInNoTree) {
  PlainToolkit toolkit;
  const Rect frame{{1, 2}, {3, 4}};
  const std::shared_ptr<View> made[] = {
      toolkit.createView(frame),        toolkit.createButton(frame),
      toolkit.createCheckBox(frame),    toolkit.createLabel(frame),
      toolkit.createTextField(frame),   toolkit.createStepper(frame),
      toolkit.createPopUpButton(frame), toolkit.createCustomView(frame, nullptr)};
  for (const auto& view : made) {
    ASSERT_TRUE(view);
    EXPECT_EQ(view->frame(), frame);
    EXPECT_EQ(view->superview(), nullptr);
    EXPECT_FALSE(view->isHidden());
  }
}

TEST(PlainToolkit, KeepsAlertsAndComesBackAtOnce) {
  PlainToolkit toolkit;
  toolkit.runModal({"", "Cutting tube can jam the cutter.", {"OK"}});
  ASSERT_EQ(toolkit.alerts().size(), 1U);
  EXPECT_EQ(toolkit.alerts()[0].informativeText, "Cutting tube can jam the cutter.");
  EXPECT_EQ(toolkit.alerts()[0].buttonTitles, std::vector<std::string>{"OK"});
  toolkit.clearAlerts();
  EXPECT_TRUE(toolkit.alerts().empty());
}

TEST(PlainToolkit, CountsBeeps) {
  PlainToolkit toolkit;
  EXPECT_EQ(toolkit.beepCount(), 0);
  toolkit.beep();
  EXPECT_EQ(toolkit.beepCount(), 1);
}

TEST(PlainToolkit, HasTheKeyWindowThatItIsGiven) {
  PlainToolkit toolkit;
  EXPECT_FALSE(toolkit.hasKeyWindow());
  EXPECT_EQ(toolkit.keyWindowFrame(), Rect{});
  toolkit.setKeyWindowFrame(Rect{{10, 20}, {600, 400}});
  EXPECT_TRUE(toolkit.hasKeyWindow());
  EXPECT_EQ(toolkit.keyWindowFrame(), (Rect{{10, 20}, {600, 400}}));
}

}  // namespace
}  // namespace cutline
