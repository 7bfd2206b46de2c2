#include "platform/DrawingContext.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
DrawingContext::~DrawingContext() = default;

}  // namespace cutline
