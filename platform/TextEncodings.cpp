#include "platform/TextEncodings.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
TextEncodings::~TextEncodings() = default;

}  // namespace cutline
