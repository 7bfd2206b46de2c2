// The controls of a model's panels, of one kind, in the order of their view trees.
#pragma once

#include <memory>
#include <vector>

#include "host/core/PrintModel.h"
#include "platform/ports/View.h"

namespace cutline::test {

template <typename Kind>
void collectShown(const View& view, std::vector<Kind*>& found) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    auto* control = dynamic_cast<Kind*>(subview.get());
    if (control != nullptr && !control->isHidden()) found.push_back(control);
    collectShown(*subview, found);
  }
}

// Those that are not hidden. Borrowed from their views.
template <typename Kind>
std::vector<Kind*> shownControls(const PrintModel& model) {
  std::vector<Kind*> found;
  for (const PanelEntry& panel : model.panels())
    if (panel.view != nullptr) collectShown(*panel.view, found);
  return found;
}

}  // namespace cutline::test
