#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "host/dialog/WheelGuard.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

// A turn of the wheel above a widget.
void turnWheel(QWidget& widget) {
  const QPointF place = widget.rect().center();
  QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, /*inverted=*/false);
  // Qt passes only what comes from the window system on to the parents.
  QSpontaneKeyEvent::setSpontaneous(&turn);
  qApp->notify(&widget, &turn);
}

class WheelGuardTest : public testing::Test {
 protected:
  WheelGuardTest() {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    mList.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    column->addWidget(&mList);
    column->addWidget(&mNumber);
    content->setMinimumHeight(1000);
    mArea.setWidget(content);
    (new QVBoxLayout(&mWindow))->addWidget(&mArea);
    mWindow.resize(300, 200);
    mWindow.show();
    mWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&mWindow));
    mArea.setFocus();
  }
  ~WheelGuardTest() override {
    mList.setParent(nullptr);
    mNumber.setParent(nullptr);
  }

  QWidget mWindow;
  WheelGuard mGuard{&mWindow};
  QScrollArea mArea{&mWindow};
  QComboBox mList;
  QSpinBox mNumber;
};

TEST_F(WheelGuardTest, WithoutTheKeyboardWhatIsBelowScrolls) {
  for (QWidget* each : {static_cast<QWidget*>(&mList), static_cast<QWidget*>(&mNumber)}) {
    mArea.ensureWidgetVisible(each);
    const int before = mArea.verticalScrollBar()->value();
    turnWheel(*each);
    EXPECT_EQ(each->focusPolicy(), Qt::StrongFocus);
    EXPECT_GT(mArea.verticalScrollBar()->value(), before);
  }
  EXPECT_EQ(mList.currentIndex(), 0);
  EXPECT_EQ(mNumber.value(), 0);
}

TEST_F(WheelGuardTest, WithTheKeyboardTheWheelChooses) {
  mArea.ensureWidgetVisible(&mList);
  mList.setFocus();
  turnWheel(mList);
  EXPECT_EQ(mList.currentIndex(), 1);
}

class WheelOverDialog : public DialogTest {};

TEST_F(WheelOverDialog, NoControlOfTheDialogIsChanged) {
  openQueue(samplePpd("tape-a"));
  dialog().findChild<QPushButton*>(QStringLiteral("print"))->setFocus();
  const auto before = sent();
  int turned = 0;
  for (QWidget* each : dialog().findChildren<QWidget*>()) {
    const bool isControl = qobject_cast<QComboBox*>(each) || qobject_cast<QAbstractSpinBox*>(each);
    if (!isControl || !each->isVisible() || !each->isEnabled()) continue;
    turnWheel(*each);
    ++turned;
  }
  EXPECT_GE(turned, 4);
  EXPECT_EQ(sent(), before);
  EXPECT_EQ(model().copies(), 1);
}

}  // namespace
}  // namespace cutline
