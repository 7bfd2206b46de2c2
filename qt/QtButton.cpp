#include "qt/QtButton.h"

namespace cutline {

QtButton::QtButton(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtButtonOf(new QPushButton, frame, std::move(actions)) {
  // In a dialog every push button would want to be the one that Return presses.
  widget()->setAutoDefault(false);
}

}  // namespace cutline
