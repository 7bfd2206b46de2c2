// What a widget writes when it is painted.
#pragma once

#include <string>

class QWidget;

namespace cutline {

// Every text of the widget and its children, one behind the other in the order of painting, just as
// it is written: a text that was cut short has its ellipsis.
std::string paintedTexts(QWidget& widget);

}  // namespace cutline
