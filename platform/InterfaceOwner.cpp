#include "platform/InterfaceOwner.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
InterfaceOwner::~InterfaceOwner() = default;

}  // namespace cutline
