// The order in which the tab key visits a panel's controls.
#pragma once

namespace cutline {

class View;

// See QtToolkit::orderTabs.
void orderTabsUnder(View& root) noexcept;

}  // namespace cutline
