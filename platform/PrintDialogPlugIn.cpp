#include "platform/PrintDialogPlugIn.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
PrintDialogPlugIn::~PrintDialogPlugIn() = default;

}  // namespace cutline
