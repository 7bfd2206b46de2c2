#include <QAccessible>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

#include "platform/ports/Controls.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class QtStepperTest : public QtPanelFixture {
 protected:
  QtStepperTest() {
    stepper->setRange(1, 99);
    stepper->setAction(recorded());
  }
  void clickArrow(QStyle::SubControl arrow) {
    QStyleOptionSpinBox option;
    option.initFrom(widget);
    option.frame = true;
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    const QRect rect = widget->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, widget);
    QTest::mouseClick(widget, Qt::LeftButton, {}, rect.center());
  }
  void turnWheel() {
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }

  std::shared_ptr<Stepper> stepper = toolkit.createStepper({{92, 100}, {22, 24}});
  QSpinBox* widget = put<QSpinBox>(stepper);
};

TEST_F(QtStepperTest, ArrowsStepAndRunTheAction) {
  show();
  clickArrow(QStyle::SC_SpinBoxUp);
  EXPECT_EQ(stepper->intValue(), 2);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  EXPECT_EQ(actionSender, stepper.get());
  clickArrow(QStyle::SC_SpinBoxDown);
  EXPECT_EQ(stepper->intValue(), 1);
}

TEST_F(QtStepperTest, KeysStep) {
  show();
  widget->setFocus();
  ASSERT_TRUE(widget->hasFocus());
  QTest::keyClick(widget, Qt::Key_Up);
  QTest::keyClick(widget, Qt::Key_Up);
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(stepper->intValue(), 2);
  EXPECT_EQ(events.size(), 6U);
}

TEST_F(QtStepperTest, TypingIntoTheHiddenTextChangesNothing) {
  show();
  widget->setFocus();
  QTest::keyClicks(widget, "57");
  QTest::keyClick(widget, Qt::Key_Backspace);
  widget->clearFocus();
  EXPECT_EQ(stepper->intValue(), 1);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtStepperTest, StopsAtItsBounds) {
  stepper->setIntValue(99);
  show();
  clickArrow(QStyle::SC_SpinBoxUp);
  EXPECT_EQ(stepper->intValue(), 99);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtStepperTest, ActionMaySetTheValueBack) {
  stepper->setAction([this](View*) { stepper->setIntValue(1); });
  show();
  clickArrow(QStyle::SC_SpinBoxUp);
  EXPECT_EQ(stepper->intValue(), 1);
  EXPECT_EQ(widget->value(), 1);
}

TEST_F(QtStepperTest, DisabledStepperStaysAsItIs) {
  show();
  stepper->setEnabled(false);
  clickArrow(QStyle::SC_SpinBoxUp);
  EXPECT_EQ(stepper->intValue(), 1);
}

TEST_F(QtStepperTest, WheelInPassingChangesNothing) {
  show();
  widget->clearFocus();
  turnWheel();
  EXPECT_EQ(stepper->intValue(), 1);
  widget->setFocus();
  turnWheel();
  EXPECT_EQ(stepper->intValue(), 2);
}

TEST_F(QtStepperTest, PaintsArrowsAndNoText) {
  show();
  EXPECT_FALSE(widget->findChild<QLineEdit*>()->isVisible());
  stepper->setIntValue(50);
  const QImage fifty = widget->grab().toImage();
  stepper->setIntValue(51);
  EXPECT_EQ(widget->grab().toImage(), fifty);
  stepper->setIntValue(99);  // the arrow upwards is greyed out now
  const QImage atBound = widget->grab().toImage();
  EXPECT_NE(atBound, fifty);
  const QRgb ground = fifty.pixel(0, fifty.height() / 2);
  int drawn = 0;
  for (int y = 0; y < fifty.height(); ++y) drawn += fifty.pixel(fifty.width() - 9, y) != ground;
  EXPECT_GT(drawn, 0);
}

TEST_F(QtStepperTest, IsAnnouncedWithNameRoleAndValue) {
  stepper->setAccessibilityLabel("Labels before each cut");
  stepper->setIntValue(12);
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Labels before each cut");
  EXPECT_EQ(spoken->role(), QAccessible::SpinBox);
  ASSERT_NE(spoken->valueInterface(), nullptr);
  EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 12);
  EXPECT_EQ(spoken->valueInterface()->maximumValue().toInt(), 99);
}

TEST_F(QtStepperTest, AssistiveTechnologyStepsItAsTheUserDoes) {
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
  EXPECT_EQ(spoken->valueInterface()->minimumValue().toInt(), 1);
  spoken->valueInterface()->setCurrentValue(7);
  EXPECT_EQ(stepper->intValue(), 7);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtStepperTest, AssistiveTechnologyDoesNotStepAGreyedStepper) {
  stepper->setIntValue(7);
  stepper->setEnabled(false);
  QAccessible::queryAccessibleInterface(widget)->valueInterface()->setCurrentValue(8);
  EXPECT_EQ(stepper->intValue(), 7);
  EXPECT_EQ(widget->value(), 7);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtStepperTest, ValueOutlivesTheWindow) {
  stepper->setIntValue(12);
  window.reset();
  stepper->setRange(1, 10);
  EXPECT_EQ(stepper->intValue(), 10);
}

}  // namespace
}  // namespace cutline
