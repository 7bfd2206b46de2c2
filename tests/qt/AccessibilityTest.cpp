#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "platform/ports/Controls.h"
#include "platform/ports/TextField.h"
#include "qt/accessibility.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {

namespace {

QAccessible::Role roleOf(QWidget& widget) {
  return QAccessible::queryAccessibleInterface(&widget)->role();
}

TEST(Accessibility, AWidgetIsWhatItIsSaidToBe) {
  QWidget graphic;
  setAccessibleRole(graphic, QAccessible::Graphic);
  tellAccessibleName(graphic, QStringLiteral("Tape"));
  tellAccessibleDescription(graphic, QStringLiteral("Cut twice"));
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&graphic);
  EXPECT_EQ(spoken->role(), QAccessible::Graphic);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Tape");
  EXPECT_EQ(spoken->text(QAccessible::Description), "Cut twice");
}

TEST(Accessibility, WhatNobodySaysAnythingOfIsLeftToQt) {
  QWidget plain;
  makeAccessible();
  makeAccessible();
  const QAccessible::Role qtsRole = roleOf(plain);
  EXPECT_NE(qtsRole, QAccessible::Graphic);
  QLabel label(QStringLiteral("Copies"));
  EXPECT_EQ(roleOf(label), QAccessible::StaticText);
}

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
  giveKeyboardElsewhere();
  spoken().actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(widget->hasFocus());
  EXPECT_TRUE(spoken().state().focused);
}

using Action = QAccessibleActionInterface;

class AccessibleComboBoxTest : public QtPanelFixture {
 protected:
  AccessibleComboBoxTest() {
    box->addItems({QStringLiteral("Tape"), QStringLiteral("Tube")});
    box->setAccessibleName(QStringLiteral("Paper"));
    window->layout()->addWidget(box);
    QObject::connect(box, &QComboBox::activated, box, [this](int index) { chosen = index; });
  }
  QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(box); }
  void perform(const QString& action) {
    spoken().actionInterface()->doAction(action);
    EXPECT_EQ(chosen, -1) << "not while assistive technology waits";
    QApplication::processEvents();
  }

  QComboBox* box = new QComboBox(window.get());
  int chosen = -1;
};

TEST_F(AccessibleComboBoxTest, SaysItsCurrentEntry) {
  EXPECT_EQ(spoken().role(), QAccessible::ComboBox);
  EXPECT_EQ(spoken().text(QAccessible::Name), "Tape");
  EXPECT_EQ(spoken().text(QAccessible::Value), "Tape");
  box->setItemText(0, {});
  EXPECT_EQ(spoken().text(QAccessible::Name), "Paper");
}

TEST_F(AccessibleComboBoxTest, ItsListHasItsNameAndItsEntries) {
  ASSERT_EQ(spoken().childCount(), 1);
  QAccessibleInterface* const list = spoken().child(0);
  EXPECT_EQ(list->text(QAccessible::Name), "Paper");
  ASSERT_EQ(list->childCount(), 2);
  EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Tube");
  EXPECT_EQ(spoken().indexOfChild(list), 0);
  EXPECT_EQ(list->parent(), &spoken());
  EXPECT_EQ(spoken().child(1), nullptr);
  EXPECT_EQ(spoken().indexOfChild(nullptr), -1);
}

TEST_F(AccessibleComboBoxTest, ChoosesAsTheUserDoes) {
  show();
  perform(Action::increaseAction());
  EXPECT_EQ(chosen, 1);
  EXPECT_EQ(spoken().text(QAccessible::Name), "Tube");
  chosen = -1;
  perform(Action::decreaseAction());
  EXPECT_EQ(chosen, 0);
}

TEST_F(AccessibleComboBoxTest, OpensItsList) {
  show();
  EXPECT_TRUE(spoken().state().expandable);
  EXPECT_FALSE(spoken().state().expanded);
  perform(Action::showMenuAction());
  EXPECT_TRUE(box->view()->isVisible());
  EXPECT_TRUE(spoken().state().expanded);
  box->hidePopup();
}

TEST_F(AccessibleComboBoxTest, TakesTheKeyboard) {
  show();
  giveKeyboardElsewhere();
  perform(Action::setFocusAction());
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(AccessibleComboBoxTest, AGreyedOneOffersAndTakesNothing) {
  show();
  box->setEnabled(false);
  EXPECT_TRUE(spoken().actionInterface()->actionNames().isEmpty());
  perform(Action::increaseAction());
  perform(Action::showMenuAction());
  EXPECT_EQ(chosen, -1);
  EXPECT_FALSE(box->view()->isVisible());
}

TEST_F(AccessibleComboBoxTest, AnEditedOneIsLeftToQt) {
  QComboBox edited;
  edited.setEditable(true);
  EXPECT_GT(QAccessible::queryAccessibleInterface(&edited)->childCount(), 1);
}

class AccessibleTextFieldTest : public QtPanelFixture {
 protected:
  AccessibleTextFieldTest() {
    field->setStringValue("1");
    field->setAccessibilityLabel("Number of labels");
    field->setTextDidChange([this] { events.emplace_back(field->stringValue()); });
  }
  QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(widget); }
  void putText(const QString& text) {
    spoken().editableTextInterface()->replaceText(0, spoken().textInterface()->characterCount(),
                                                  text);
  }

  std::shared_ptr<TextField> field = toolkit.createTextField({{36, 100}, {52, 22}});
  QLineEdit* widget = put<QLineEdit>(field);
};

TEST_F(AccessibleTextFieldTest, IsAnEditedTextOfItsName) {
  EXPECT_EQ(spoken().role(), QAccessible::EditableText);
  EXPECT_EQ(spoken().text(QAccessible::Name), "Number of labels");
  EXPECT_EQ(spoken().text(QAccessible::Value), "1");
  EXPECT_TRUE(spoken().state().editable);
}

TEST_F(AccessibleTextFieldTest, AssistiveTechnologyEditsItAsTheUserDoes) {
  putText(QStringLiteral("3"));
  EXPECT_EQ(field->stringValue(), "3");
  EXPECT_EQ(events, (Events{"3", "observer"}));
}

TEST_F(AccessibleTextFieldTest, AssistiveTechnologyDoesNotEditAGreyedField) {
  field->setEnabled(false);
  putText(QStringLiteral("3"));
  EXPECT_EQ(field->stringValue(), "1");
  EXPECT_EQ(widget->text(), "1");
  EXPECT_TRUE(events.empty());
}

}  // namespace

}  // namespace cutline
