#include "qt/accessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMetaObject>
#include <QVariant>

#include "qt/QtCustomView.h"
#include "qt/QtText.h"

namespace cutline {

AccessibleCheckBox::AccessibleCheckBox(QCheckBox& box)
    : QAccessibleWidget(&box, QAccessible::CheckBox), mBox(box) {}

QString AccessibleCheckBox::text(QAccessible::Text kind) const {
  const QString own = QAccessibleWidget::text(kind);
  return kind == QAccessible::Name && own.isEmpty() ? withoutMark(mBox.text()) : own;
}

QAccessible::State AccessibleCheckBox::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.checkable = true;
  state.checked = mBox.checkState() == Qt::Checked;
  state.checkStateMixed = mBox.checkState() == Qt::PartiallyChecked;
  state.pressed = mBox.isDown();
  return state;
}

QStringList AccessibleCheckBox::actionNames() const {
  if (!mBox.isEnabled()) return {};
  return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
}

void AccessibleCheckBox::doAction(const QString& name) {
  if (name != toggleAction() && name != pressAction()) return QAccessibleWidget::doAction(name);
  QMetaObject::invokeMethod(&mBox, &QCheckBox::click, Qt::QueuedConnection);
}

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
  if (kind == QAccessible::Value) return value();
  const QString entry = kind == QAccessible::Name ? mBox.currentText() : QString();
  return entry.isEmpty() ? QAccessibleWidget::text(kind) : entry;
}

QString AccessibleComboBox::value() const {
  if (mBox.currentIndex() < 0) return mBox.placeholderText();
  const QString entry = mBox.currentText();
  return entry.isEmpty() ? mBox.currentData(Qt::AccessibleTextRole).toString() : entry;
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

AccessibleDrawing::AccessibleDrawing(ClientWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::Graphic), mWidget(widget) {}

QAccessible::Text AccessibleDrawing::whereWordsAre(const ClientWidget& widget) {
  return widget.accessibleName().isEmpty() ? QAccessible::Name : QAccessible::Description;
}

QString AccessibleDrawing::text(QAccessible::Text kind) const {
  return kind == whereWordsAre(mWidget) ? mWidget.words() : QAccessibleWidget::text(kind);
}

namespace {

constexpr char kRole[] = "cutlineAccessibleRole";

// Null leaves the object to Qt. Some of the classes have no meta-object of their own, so the name
// that Qt knows them by, its first argument, is of no use.
QAccessibleInterface* accessibleOf(const QString& /*className*/, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (!widget) return nullptr;
  if (auto* const drawing = dynamic_cast<ClientWidget*>(widget)) {
    return new AccessibleDrawing(*drawing);
  }
  if (auto* const box = qobject_cast<QCheckBox*>(widget)) return new AccessibleCheckBox(*box);
  auto* const list = qobject_cast<QComboBox*>(widget);
  if (list && !list->isEditable()) return new AccessibleComboBox(*list);
  const QVariant role = widget->property(kRole);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void makeAccessible() { QAccessible::installFactory(accessibleOf); }

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
  makeAccessible();
  widget.setProperty(kRole, static_cast<int>(role));
}

void tellAccessibleName(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void tellAccessibleDescription(QWidget& widget, const QString& description) {
  if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

}  // namespace cutline
