#include "platform/Button.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Button::~Button() = default;

}  // namespace cutline
