#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <functional>

#include "plain/PlainToolkit.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/TextField.h"
#include "qt/QtToolkit.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

class QtToolkitTest : public QtPanelFixture {
 protected:
  // Runs `look` on the message box once it is open, then presses its button at `index`.
  static void whenAlertOpens(const std::function<void(QMessageBox&)>& look, int index = 0) {
    QTimer::singleShot(0, qApp, [=] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      look(*box);
      box->buttons().at(index)->click();
    });
  }
  // The controls in the order in which the tab key visits them, beginning at `first`.
  std::vector<View*> visited(const std::shared_ptr<View>& first, std::size_t count) {
    std::vector<View*> order;
    QtToolkit::widgetOf(*first)->setFocus(Qt::TabFocusReason);
    for (std::size_t i = 0; i < count; ++i) {
      for (const auto& each : root->subviews()) {
        if (QtToolkit::widgetOf(*each)->hasFocus()) order.push_back(each.get());
      }
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return order;
  }
  std::shared_ptr<CheckBox> boxAt(double x, double y) {
    auto box = toolkit.createCheckBox({{x, y}, {100, 22}});
    root->addSubview(box);
    return box;
  }
};

TEST_F(QtToolkitTest, AlertWithoutAMessageSaysItsInformativeText) {
  QString text, informative;
  QStringList buttons;
  bool modal = false;
  show();
  whenAlertOpens([&](QMessageBox& box) {
    text = box.text();
    informative = box.informativeText();
    modal = box.windowModality() == Qt::ApplicationModal;
    for (const auto* button : box.buttons()) buttons << button->text();
  });
  toolkit.runModal({"", "This tape & cutter <b>do</b> not match.", {"OK"}});
  EXPECT_EQ(text, "This tape & cutter <b>do</b> not match.");
  EXPECT_EQ(informative, "");
  EXPECT_EQ(buttons, QStringList("OK"));
  EXPECT_TRUE(modal);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtToolkitTest, NeitherTextOfAnAlertIsReadAsHtml) {
  QStringList read;
  whenAlertOpens([&](QMessageBox& box) {
    for (const QLabel* label : box.findChildren<QLabel*>())
      if (label->textFormat() != Qt::PlainText) read << label->text();
  });
  toolkit.runModal({"<b>Stop</b>?", "The <img src=\"job\"> is printing.", {"OK"}});
  EXPECT_EQ(read, QStringList());
}

TEST_F(QtToolkitTest, AlertWithAMessageShowsBothTextsAndAllButtons) {
  QString text, informative, defaultTitle;
  whenAlertOpens(
      [&](QMessageBox& box) {
        text = box.text();
        informative = box.informativeText();
        defaultTitle = box.defaultButton()->text();
      },
      1);
  toolkit.runModal({"Stop?", "The job is printing.", {"Stop & eject", "Go on"}});
  EXPECT_EQ(text, "Stop?");
  EXPECT_EQ(informative, "The job is printing.");
  EXPECT_EQ(defaultTitle, "Stop && eject");
}

TEST_F(QtToolkitTest, AlertSurvivesTheEndOfItsWindow) {
  show();
  QTimer::singleShot(0, qApp, [this] { window.reset(); });
  toolkit.runModal({"", "Gone", {"OK"}});
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtToolkitTest, EscapeClosesAnAlertWithOneButton) {
  QTimer::singleShot(0, qApp,
                     [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  toolkit.runModal({"", "Read this", {"OK"}});
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtToolkitTest, KeyWindowIsTheActiveOneCountedFromBelow) {
  EXPECT_FALSE(toolkit.hasKeyWindow());
  EXPECT_EQ(toolkit.keyWindowFrame(), Rect{});
  show();
  window->setGeometry(50, 60, 400, 300);
  QApplication::processEvents();
  EXPECT_TRUE(toolkit.hasKeyWindow());
  const QRect frame = window->frameGeometry();
  const double screenHeight = window->screen()->geometry().height();
  EXPECT_EQ(toolkit.keyWindowFrame(), (Rect{{double(frame.x()), screenHeight - frame.bottom() - 1},
                                            {double(frame.width()), double(frame.height())}}));
}

TEST_F(QtToolkitTest, TabVisitsRowsFromTopToBottomThenTheNextColumn) {
  const auto preset = toolkit.createPopUpButton({{150, 160}, {120, 32}});
  preset->addItem({"A", 1, {}, {}});
  root->addSubview(preset);
  const auto last = boxAt(10, 60);
  const auto stepper = toolkit.createStepper({{80, 120}, {22, 24}});
  root->addSubview(stepper);
  const auto field = toolkit.createTextField({{30, 120}, {40, 22}});
  root->addSubview(field);
  const auto hidden = boxAt(10, 100);
  hidden->setHidden(true);
  const auto label = toolkit.createLabel({{104, 126}, {20, 18}});
  root->addSubview(label);
  const auto first = boxAt(10, 150);
  show();
  QtToolkit::orderTabs(*root);
  EXPECT_EQ(visited(first, 6), (std::vector<View*>{first.get(), field.get(), stepper.get(),
                                                   last.get(), preset.get(), first.get()}));
}

TEST_F(QtToolkitTest, TabFollowsANewLayout) {
  const auto a = boxAt(10, 150);
  const auto b = boxAt(10, 100);
  show();
  QtToolkit::orderTabs(*root);
  EXPECT_EQ(visited(a, 2), (std::vector<View*>{a.get(), b.get()}));
  const auto c = boxAt(10, 180);
  a->setFrameOrigin({10, 20});
  QtToolkit::orderTabs(*root);
  EXPECT_EQ(visited(c, 3), (std::vector<View*>{c.get(), b.get(), a.get()}));
}

TEST_F(QtToolkitTest, ViewOfAnotherToolkitHasNoWidgetAndIsNotTaken) {
  PlainToolkit plain;
  const auto foreign = plain.createView({{0, 0}, {10, 10}});
  EXPECT_EQ(QtToolkit::widgetOf(*foreign), nullptr);
  root->addSubview(foreign);
  EXPECT_TRUE(root->subviews().empty());
  QtToolkit::orderTabs(*foreign);
}

TEST_F(QtToolkitTest, ControlsOutliveTheToolkit) {
  std::shared_ptr<CheckBox> box;
  {
    QtToolkit shortLived;
    shortLived.setActionObserver(&observer);
    box = shortLived.createCheckBox({{0, 0}, {10, 10}});
    box->setAction(recorded());
  }
  box->performClick();
  EXPECT_EQ(events, (Events{"action"}));
}

}  // namespace
}  // namespace cutline
