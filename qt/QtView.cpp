#include "qt/QtView.h"

namespace cutline {

QtView::QtView(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtViewOf(new QWidget, frame, std::move(actions)), mWindowWatcher(core()) {}

}  // namespace cutline
