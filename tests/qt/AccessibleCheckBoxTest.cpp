#include <QAccessible>
#include <QCheckBox>

#include "platform/ports/Controls.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class AccessibleCheckBoxTest : public QtPanelFixture {
 protected:
  AccessibleCheckBoxTest() {
    box->setAction(recorded());
    box->setTitle("Cut & go");
  }
  QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(widget); }
  void toggle() {
    spoken().actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  }

  std::shared_ptr<CheckBox> box = toolkit.createCheckBox({{16, 100}, {256, 22}});
  QCheckBox* widget = put<QCheckBox>(box);
};

TEST_F(AccessibleCheckBoxTest, HasItsTitleForAName) {
  EXPECT_EQ(spoken().role(), QAccessible::CheckBox);
  EXPECT_EQ(spoken().text(QAccessible::Name), "Cut & go");
  box->setAccessibilityLabel("Cut and go");
  EXPECT_EQ(spoken().text(QAccessible::Name), "Cut and go");
}

TEST_F(AccessibleCheckBoxTest, TheSignOfAMnemonicIsNotSpoken) {
  QCheckBox own(QStringLiteral("Keep && &cut"));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&own)->text(QAccessible::Name), "Keep & cut");
}

TEST_F(AccessibleCheckBoxTest, SaysWhetherItIsTickedMixedOrGreyed) {
  EXPECT_TRUE(spoken().state().checkable);
  EXPECT_FALSE(spoken().state().checked);
  box->setState(CheckBox::kOn);
  EXPECT_TRUE(spoken().state().checked);
  box->setState(CheckBox::kMixed);
  EXPECT_TRUE(spoken().state().checkStateMixed);
  EXPECT_FALSE(spoken().state().checked);
  EXPECT_FALSE(spoken().state().disabled);
  box->setEnabled(false);
  EXPECT_TRUE(spoken().state().disabled);
}

// What the click sets off may wait for the user, so it comes after the answer.
TEST_F(AccessibleCheckBoxTest, IsTickedAsByAClickButLater) {
  show();
  EXPECT_EQ(spoken().actionInterface()->actionNames().front(),
            QAccessibleActionInterface::toggleAction());
  toggle();
  EXPECT_TRUE(events.empty());
  QApplication::processEvents();
  EXPECT_EQ(box->state(), CheckBox::kOn);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(AccessibleCheckBoxTest, AMixedBoxIsTicked) {
  show();
  box->setState(CheckBox::kMixed);
  toggle();
  QApplication::processEvents();
  EXPECT_EQ(box->state(), CheckBox::kOn);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(AccessibleCheckBoxTest, AGreyedBoxOffersAndTakesNothing) {
  show();
  box->setEnabled(false);
  EXPECT_TRUE(spoken().actionInterface()->actionNames().isEmpty());
  toggle();
  QApplication::processEvents();
  EXPECT_EQ(box->state(), CheckBox::kOff);
  EXPECT_TRUE(events.empty());
}

TEST_F(AccessibleCheckBoxTest, TakesTheKeyboard) {
  show();
  spoken().actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(widget->hasFocus());
  EXPECT_TRUE(spoken().state().focused);
}

}  // namespace
}  // namespace cutline
