#include "qt/accessibility.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QVariant>

#include "qt/AccessibleCheckBox.h"
#include "qt/AccessibleComboBox.h"
#include "qt/AccessibleDrawing.h"
#include "qt/ClientWidget.h"

namespace cutline {

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
