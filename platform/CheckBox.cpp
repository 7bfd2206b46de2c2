#include "platform/CheckBox.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
CheckBox::~CheckBox() = default;

}  // namespace cutline
