#include "platform/Image.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
Image::~Image() = default;

}  // namespace cutline
