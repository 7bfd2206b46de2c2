// What a widget writes when it is painted.
#pragma once

#include <QString>

class QWidget;

namespace cutline {

// Every text of the widget and its children in the order of painting, each in a line of its own,
// just as it is written: a text that was cut short has its ellipsis.
QString paintedTexts(QWidget& widget);

}  // namespace cutline
