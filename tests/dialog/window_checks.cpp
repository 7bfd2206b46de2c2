#include "tests/dialog/window_checks.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTest>
#include <map>

#include "host/dialog/mnemonics.h"

namespace cutline {

namespace {

constexpr std::size_t kMostControls = 500;

template <class Widget>
std::vector<const Widget*> shown(const QWidget& window) {
  std::vector<const Widget*> found;
  for (const Widget* widget : window.findChildren<Widget*>()) {
    if (widget->isVisible() && widget->window() == &window) found.push_back(widget);
  }
  return found;
}

int widthOf(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void expectRoom(const QWidget& widget, const QString& text, const QSize& room) {
  EXPECT_GE(room.width(), widthOf(widget, text)) << text.toStdString();
  EXPECT_GE(room.height(), widget.fontMetrics().height()) << text.toStdString();
}

void expectWhole(const QLabel& label) {
  const QString& text = label.text();
  if (label.wordWrap()) {
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << text.toStdString();
  } else {
    expectRoom(label, text, label.size());
  }
}

void expectWhole(const QAbstractButton& button) {
  QSize room = button.size();
  if (const auto* box = qobject_cast<const QCheckBox*>(&button)) {
    QStyleOptionButton option;
    option.initFrom(box);
    room = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).size();
  }
  if (!button.text().isEmpty()) expectRoom(button, button.text(), room);
}

void expectWhole(const QLineEdit& field) {
  const QString text = field.text().isEmpty() ? field.placeholderText() : field.text();
  EXPECT_GE(field.width(), widthOf(field, text)) << text.toStdString();
}

template <class Widget>
void expectWholeEach(const QWidget& window) {
  for (const Widget* widget : shown<Widget>(window)) expectWhole(*widget);
}

}  // namespace

std::string describe(const QWidget& widget) {
  return std::string(widget.metaObject()->className()) + " \"" +
         widget.accessibleName().toStdString() + "\" " + widget.objectName().toStdString();
}

std::vector<QWidget*> controlsOf(const QWidget& window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->window() != &window || !widget->isVisible() || !widget->isEnabled()) continue;
    const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
    if (takesKeys) found.push_back(widget);
  }
  return found;
}

std::set<QWidget*> reachedByTab() {
  std::set<QWidget*> reached;
  const QWidget* const first = QApplication::focusWidget();
  if (!first) return reached;
  do {
    reached.insert(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  } while (QApplication::focusWidget() != first && reached.size() < kMostControls);
  return reached;
}

void expectTabReachesEveryControl(const QWidget& window) {
  const std::set<QWidget*> reached = reachedByTab();
  for (QWidget* control : controlsOf(window)) {
    EXPECT_TRUE(reached.contains(control)) << describe(*control);
  }
}

std::vector<QString> titlesOf(const QWidget& window) {
  std::vector<QString> titles;
  for (const QLabel* label : shown<QLabel>(window)) {
    if (label->buddy()) titles.push_back(label->text());
  }
  for (const QAbstractButton* button : shown<QAbstractButton>(window)) {
    titles.push_back(button->text());
  }
  return titles;
}

void expectNoSharedMnemonic(const QWidget& window) {
  std::map<QChar, QString> owners;
  for (const QString& title : titlesOf(window)) {
    const QChar letter = mnemonicIn(title);
    if (letter.isNull()) continue;
    const auto [owner, isNew] = owners.emplace(letter, title);
    EXPECT_TRUE(isNew) << title.toStdString() << " and " << owner->second.toStdString();
  }
}

void expectWholeEntry(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  const QRect room = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &combo);
  expectRoom(combo, combo.currentText(), room.size());
}

void expectNothingCutOff(const QWidget& window) {
  expectWholeEach<QLabel>(window);
  expectWholeEach<QAbstractButton>(window);
  expectWholeEach<QLineEdit>(window);
}

}  // namespace cutline
