// The toolkit's alert as a message box.
#pragma once

namespace cutline {

struct Alert;

// Shows the alert in front of the active window and comes back when it has been closed.
void runModalAlert(const Alert& alert) noexcept;

}  // namespace cutline
