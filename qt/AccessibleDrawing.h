// What assistive technology is told of a client's drawing: that it is a graphic, and what it shows.
// A name that was set for the widget stays its name, and the words then describe it.
#pragma once

#include <QAccessibleWidget>

namespace cutline {

class ClientWidget;

class AccessibleDrawing : public QAccessibleWidget {
 public:
  explicit AccessibleDrawing(ClientWidget& widget);

  // The kind of text that gives the client's words: name or description.
  static QAccessible::Text whereWordsAre(const ClientWidget& widget);

  QString text(QAccessible::Text kind) const override;

 private:
  const ClientWidget& mWidget;
};

}  // namespace cutline
