#include "qt/AccessibleComboBox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMetaObject>

#include "qt/accessibility.h"

namespace cutline {

namespace {

// As the user's key, later: what a choice sets off may be a question to the user, and assistive
// technology must not wait until that is answered.
void press(QComboBox& box, Qt::Key key) {
  QCoreApplication::postEvent(&box, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  QCoreApplication::postEvent(&box, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
}

}  // namespace

AccessibleComboBox::AccessibleComboBox(QComboBox& box)
    : QAccessibleWidget(&box, QAccessible::ComboBox), mBox(box) {}

QString AccessibleComboBox::text(QAccessible::Text kind) const {
  const bool isEntry = kind == QAccessible::Name || kind == QAccessible::Value;
  const QString entry = isEntry ? mBox.currentText() : QString();
  return entry.isEmpty() ? QAccessibleWidget::text(kind) : entry;
}

QAccessible::State AccessibleComboBox::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.expandable = true;
  state.expanded = mBox.view()->isVisible();
  return state;
}

// Whoever meets the list does not know which one it is.
QAccessibleInterface* AccessibleComboBox::child(int index) const {
  if (index != 0) return nullptr;
  tellAccessibleName(*mBox.view(), mBox.accessibleName());
  return QAccessible::queryAccessibleInterface(mBox.view());
}

int AccessibleComboBox::indexOfChild(const QAccessibleInterface* child) const {
  return child && child->object() == mBox.view() ? 0 : -1;
}

QStringList AccessibleComboBox::actionNames() const {
  if (!mBox.isEnabled()) return {};
  return QStringList{showMenuAction(), increaseAction(), decreaseAction()} +
         QAccessibleWidget::actionNames();
}

void AccessibleComboBox::doAction(const QString& name) {
  if (!mBox.isEnabled()) return;
  if (name == increaseAction()) return press(mBox, Qt::Key_Down);
  if (name == decreaseAction()) return press(mBox, Qt::Key_Up);
  if (name != showMenuAction()) return QAccessibleWidget::doAction(name);
  QMetaObject::invokeMethod(&mBox, &QComboBox::showPopup, Qt::QueuedConnection);
}

}  // namespace cutline
