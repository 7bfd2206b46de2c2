#include "platform/PrintDialogPanel.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
PrintDialogPanel::~PrintDialogPanel() = default;

}  // namespace cutline
