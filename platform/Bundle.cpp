#include "platform/Bundle.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Bundle::~Bundle() = default;

}  // namespace cutline
