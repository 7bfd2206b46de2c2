#include "plain/PlainButton.h"

namespace cutline {

void PlainButton::performClick() noexcept {
  if (!isEnabled()) return;
  advanceState();
  sendAction();
}

}  // namespace cutline
