// The order in which the tab key visits a dialog.
#pragma once

#include <vector>

class QWidget;

namespace cutline {

// Makes the tab key visit what lies in the first of these, then in the second, and so on; within
// one the order stays as it is.
void chainTabs(const std::vector<QWidget*>& roots);

}  // namespace cutline
