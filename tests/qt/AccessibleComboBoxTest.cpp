#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>

#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

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

}  // namespace
}  // namespace cutline
