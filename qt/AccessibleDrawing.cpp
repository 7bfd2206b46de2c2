#include "qt/AccessibleDrawing.h"

#include "qt/ClientWidget.h"

namespace cutline {

// The class has no meta-object of its own, so the key is that of its base.
void AccessibleDrawing::makeKnown() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* const widget = dynamic_cast<ClientWidget*>(object);
    return widget ? new AccessibleDrawing(*widget) : nullptr;
  });
}

QAccessible::Text AccessibleDrawing::whereWordsAre(const ClientWidget& widget) {
  return widget.accessibleName().isEmpty() ? QAccessible::Name : QAccessible::Description;
}

AccessibleDrawing::AccessibleDrawing(ClientWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::Graphic), mWidget(widget) {}

QString AccessibleDrawing::text(QAccessible::Text kind) const {
  return kind == whereWordsAre(mWidget) ? mWidget.words() : QAccessibleWidget::text(kind);
}

}  // namespace cutline
