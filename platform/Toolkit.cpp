#include "platform/Toolkit.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
ActionObserver::~ActionObserver() = default;
Toolkit::~Toolkit() = default;

}  // namespace cutline
