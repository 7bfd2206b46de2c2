#include "platform/PopUpButton.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
PopUpButton::~PopUpButton() = default;

}  // namespace cutline
