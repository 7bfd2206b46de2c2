// The dialog without a mouse, and for those who hear it.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <map>
#include <set>

#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

class KeyboardTest : public DialogTest, public testing::WithParamInterface<std::string> {
 protected:
  void open() {
    openQueue(GetParam());
    server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
    click(buttonWithText<QPushButton>("&More printer options"));
  }

  // What a user can reach with the tab key from the first control on, once around.
  std::set<QWidget*> reachedByTab() {
    std::set<QWidget*> reached;
    QWidget* const first = QApplication::focusWidget();
    do {
      reached.insert(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && reached.size() < 500);
    return reached;
  }

  std::vector<QWidget*> controls() {
    std::vector<QWidget*> found;
    for (QWidget* widget : dialog().findChildren<QWidget*>()) {
      const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
      if (takesKeys && widget->isVisible() && widget->isEnabled()) found.push_back(widget);
    }
    return found;
  }
};

std::string describe(const QWidget& widget) {
  return std::string(widget.metaObject()->className()) + " \"" +
         widget.accessibleName().toStdString() + "\" " + widget.objectName().toStdString();
}

TEST_P(KeyboardTest, TheTabKeyReachesEveryControl) {
  open();
  const std::set<QWidget*> reached = reachedByTab();
  for (QWidget* control : controls()) EXPECT_TRUE(reached.contains(control)) << describe(*control);
}

TEST_P(KeyboardTest, TheTabKeyGoesFromThePrinterThroughThePanelToPrint) {
  open();
  named<QWidget>("Printer")->setFocus();
  std::vector<QString> names;
  for (std::size_t i = 0; i < controls().size(); ++i) {
    const QWidget* focus = QApplication::focusWidget();
    names.push_back(focus->accessibleName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  const auto place = [&](const char* name) {
    return std::find(names.begin(), names.end(), QLatin1String(name)) - names.begin();
  };
  EXPECT_EQ(place("Printer"), 0);
  EXPECT_LT(place("Preset"), place("Copies"));
  EXPECT_LT(place("Copies"), place("Pages"));
  EXPECT_LT(place("Pages"), place("Paper"));
  EXPECT_LT(place("Paper"), place("Preview of the labels"));
  named<QWidget>("Printer")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), buttonWithText<QPushButton>("Pr&int"));
}

TEST_P(KeyboardTest, EveryControlHasAnAccessibleName) {
  open();
  for (QWidget* control : controls()) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
    ASSERT_NE(accessible, nullptr) << describe(*control);
    EXPECT_FALSE(accessible->text(QAccessible::Name).trimmed().isEmpty()) << describe(*control);
  }
}

TEST_P(KeyboardTest, NoTwoControlsShareAMnemonic) {
  open();
  std::map<QString, int> uses;
  const auto count = [&uses](const QString& text) {
    const QString key = QKeySequence::mnemonic(text).toString();
    if (!key.isEmpty()) ++uses[key];
  };
  for (const QLabel* label : dialog().findChildren<QLabel*>()) {
    if (label->buddy() && label->isVisible()) count(label->text());
  }
  for (const QAbstractButton* button : dialog().findChildren<QAbstractButton*>()) {
    if (button->isVisible()) count(button->text());
  }
  EXPECT_GE(uses.size(), 9u);
  for (const auto& [key, number] : uses) EXPECT_EQ(number, 1) << key.toStdString();
}

TEST_P(KeyboardTest, SpaceTicksABoxOfThePanel) {
  open();
  QWidget* mirror = box("LxMirror");
  mirror->setFocus();
  const std::string before = sent()["LxMirror"];
  press(mirror, Qt::Key_Space);
  EXPECT_NE(sent()["LxMirror"], before);
}

TEST_P(KeyboardTest, MnemonicsReachTheirControls) {
  open();
  const std::map<int, const char*> expected = {{Qt::Key_P, "Printer"},
                                               {Qt::Key_E, "Preset"},
                                               {Qt::Key_C, "Copies"},
                                               {Qt::Key_A, "Pages"},
                                               {Qt::Key_R, "Paper"}};
  for (const auto& [key, name] : expected) {
    press(&dialog(), key, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QLatin1String(name));
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, KeyboardTest,
                         testing::Values(samplePpd("tape-a"), samplePpd("tape-b"),
                                         samplePpd("roll")),
                         [](const auto& sample) {
                           const std::string& path = sample.param;
                           std::string name = path.substr(path.rfind('/') + 1);
                           name = name.substr(0, name.find('.'));
                           name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                           return name;
                         });

}  // namespace

}  // namespace cutline
