// The classes of the bundle's own that its interface files may name: "PDEFormatter" for formatters,
// "PDETextField13_v400_" for text fields.
#pragma once

#include "platform/ports/Interface.h"

namespace cutline {

const InterfaceClasses& bundleInterfaceClasses() noexcept;

}  // namespace cutline
