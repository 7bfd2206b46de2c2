#include "qt/AccessibleDrawing.h"

#include "qt/ClientWidget.h"

namespace cutline {

AccessibleDrawing::AccessibleDrawing(ClientWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::Graphic), mWidget(widget) {}

QAccessible::Text AccessibleDrawing::whereWordsAre(const ClientWidget& widget) {
  return widget.accessibleName().isEmpty() ? QAccessible::Name : QAccessible::Description;
}

QString AccessibleDrawing::text(QAccessible::Text kind) const {
  return kind == whereWordsAre(mWidget) ? mWidget.words() : QAccessibleWidget::text(kind);
}

}  // namespace cutline
