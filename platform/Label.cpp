#include "platform/Label.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Label::~Label() = default;

}  // namespace cutline
