#include <QCheckBox>
#include <QHelpEvent>
#include <QPointer>
#include <QPushButton>
#include <QToolTip>

#include "platform/ports/Controls.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class QtCheckBoxTest : public QtPanelFixture {
 protected:
  QtCheckBoxTest() { box->setAction(recorded()); }
  void click() { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, 11)); }
  QString toolTipShown() {
    const QPoint at(8, 11);
    QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }

  std::shared_ptr<CheckBox> box = toolkit.createCheckBox({{16, 100}, {256, 22}});
  QCheckBox* widget = put<QCheckBox>(box);
};

TEST_F(QtCheckBoxTest, ClickChangesTheStateThenRunsTheActionThenTellsTheObserver) {
  int stateInAction = -2;
  box->setAction([&](View*) {
    stateInAction = box->state();
    events.emplace_back("action");
  });
  show();
  click();
  EXPECT_EQ(stateInAction, 1);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  EXPECT_EQ(observer.lastSender, box.get());
  click();
  EXPECT_EQ(box->state(), 0);
}

// The toolkit alone draws it three times.
TEST_F(QtCheckBoxTest, AClickIsDrawnOnceWithAllThatItChanges) {
  show();
  QApplication::processEvents();
  PaintCount paints(widget);
  box->setAction([&](View*) {
    EXPECT_EQ(paints.count, 0);
    EXPECT_TRUE(widget->updatesEnabled());
  });
  click();
  EXPECT_EQ(paints.afterAll(), 1);
}

TEST_F(QtCheckBoxTest, ThePressedBoxIsDrawnAsPressed) {
  show();
  QApplication::processEvents();
  PaintCount paints(widget);
  QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(8, 11));
  EXPECT_TRUE(widget->isDown());
  EXPECT_EQ(paints.afterAll(), 1);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(8, 200));
  EXPECT_EQ(box->state(), 0) << "it was let go of beside the box";
  EXPECT_TRUE(widget->updatesEnabled());
  EXPECT_EQ(paints.afterAll(), 2);
}

TEST_F(QtCheckBoxTest, TheActionMayTakeTheBoxAway) {
  show();
  const QPointer<QWidget> shown(widget);
  box->setAction([&](View*) { delete shown.data(); });
  click();
  EXPECT_EQ(shown, nullptr);
}

TEST_F(QtCheckBoxTest, SpaceBarIsAClick) {
  show();
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_EQ(box->state(), 1);
  EXPECT_EQ(actionSender, box.get());
}

TEST_F(QtCheckBoxTest, SettersRunNothing) {
  box->setState(1);
  box->setState(-1);
  box->setTitle("Half cut");
  box->setEnabled(false);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtCheckBoxTest, PerformClickIsAUsersClick) {
  box->performClick();
  EXPECT_EQ(box->state(), 1);
  EXPECT_TRUE(widget->isChecked());
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtCheckBoxTest, DisabledBoxAnswersNoClick) {
  show();
  box->setEnabled(false);
  box->performClick();
  click();
  EXPECT_EQ(box->state(), 0);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtCheckBoxTest, PerformClickWorksWhileTheHostHasGreyedOutThePanel) {
  QtToolkit::widgetOf(*root)->setEnabled(false);
  box->performClick();
  EXPECT_EQ(box->state(), 1);
  EXPECT_TRUE(box->isEnabled());
}

TEST_F(QtCheckBoxTest, MixedIsShownButNeverAUsersChoice) {
  EXPECT_FALSE(widget->isTristate());
  box->setState(CheckBox::kMixed);
  EXPECT_EQ(widget->checkState(), Qt::PartiallyChecked);
  show();
  click();
  EXPECT_EQ(box->state(), 1);
  click();
  EXPECT_EQ(box->state(), 0);
  click();
  EXPECT_EQ(box->state(), 1);
}

TEST_F(QtCheckBoxTest, ActionMaySetTheStateBack) {
  box->setAction([this](View*) { box->setState(0); });
  show();
  click();
  EXPECT_EQ(box->state(), 0);
  EXPECT_FALSE(widget->isChecked());
}

TEST_F(QtCheckBoxTest, WithoutAnActionNobodyIsTold) {
  box->setAction({});
  box->performClick();
  EXPECT_EQ(box->state(), 1);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtCheckBoxTest, AmpersandOfAPpdTextIsNoMnemonic) {
  box->setTitle("Cut & feed");
  EXPECT_EQ(box->title(), "Cut & feed");
  EXPECT_EQ(widget->text(), "Cut && feed");
  EXPECT_TRUE(widget->shortcut().isEmpty());
}

TEST_F(QtCheckBoxTest, TextThatFitsHasNoToolTip) {
  box->setTitle("Cut & feed");
  show();
  EXPECT_EQ(toolTipShown(), QString());
}

TEST_F(QtCheckBoxTest, TextLongerThanItsFrameIsReadInTheToolTip) {
  const QString longText = "Cut & " + QString("very ").repeated(20) + "late";
  box->setTitle(longText.toStdString());
  show();
  EXPECT_EQ(toolTipShown(), longText);
  QToolTip::hideText();
}

TEST_F(QtCheckBoxTest, TextLongerThanItsFrameEndsInAnEllipsis) {
  QCheckBox clipping(QtToolkit::widgetOf(*root));
  clipping.setGeometry(widget->geometry());
  const auto looksClipped = [&](const QString& text) {
    box->setTitle(text.toStdString());
    clipping.setText(text);
    return widget->grab().toImage() == clipping.grab().toImage();
  };
  EXPECT_TRUE(looksClipped("W"));
  EXPECT_FALSE(looksClipped(QString("W").repeated(100)));
}

TEST_F(QtCheckBoxTest, KeepsItsKeyword) {
  EXPECT_EQ(box->ppdKeyword(), "");
  box->setPPDKeyword("LxHalfCut");
  EXPECT_EQ(box->ppdKeyword(), "LxHalfCut");
}

TEST_F(QtCheckBoxTest, PushButtonRunsItsActionAndHasNoMnemonic) {
  const auto button = toolkit.createButton({{0, 0}, {100, 28}});
  auto* const push = put<QPushButton>(button);
  button->setTitle("Save & close");
  button->setAction(recorded());
  show();
  QTest::mouseClick(push, Qt::LeftButton);
  EXPECT_EQ(push->text(), "Save && close");
  EXPECT_EQ(actionSender, button.get());
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

}  // namespace
}  // namespace cutline
