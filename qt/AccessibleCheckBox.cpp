#include "qt/AccessibleCheckBox.h"

#include <QMetaObject>

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

}  // namespace cutline
