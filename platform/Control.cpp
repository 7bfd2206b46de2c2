#include "platform/Control.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Control::~Control() = default;

}  // namespace cutline
