#include "platform/Stepper.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Stepper::~Stepper() = default;

}  // namespace cutline
