#include "platform/PDEPluginCallback13_v400_.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
PDEPluginCallback13_v400_::~PDEPluginCallback13_v400_() = default;

}  // namespace cutline
