#include "host/dialog/Disclosure.h"

#include "host/dialog/Icons.h"

namespace cutline {

QPushButton* makeDisclosure(const QString& title, QWidget* parent) {
  auto* button = new QPushButton(icon(Glyph::closed), title, parent);
  button->setAccessibleName(QString(title).remove(QLatin1Char('&')));
  button->setCheckable(true);
  button->setFlat(true);
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  QObject::connect(button, &QPushButton::toggled, button, [button](bool isOpen) {
    button->setIcon(icon(isOpen ? Glyph::opened : Glyph::closed));
  });
  return button;
}

}  // namespace cutline
