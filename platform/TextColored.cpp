#include "platform/TextColored.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
TextColored::~TextColored() = default;

}  // namespace cutline
