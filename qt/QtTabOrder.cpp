// The order in which the tab key visits a panel's controls.
#include <QWidget>
#include <algorithm>
#include <memory>
#include <vector>

#include "qt/QtToolkit.h"
#include "qt/QtViewCore.h"

namespace cutline {

namespace {

// Controls of one row may stand a few points apart (a field, its stepper and their label).
constexpr int kSameRow = 8;

struct Stop {
  QWidget* widget;
  QRect place;  // within the root
};

void collectStops(QtViewCore& core, QWidget& root, std::vector<Stop>& stops) {
  for (const auto& subview : core.subviews()) {
    QtViewCore& below = *QtViewCore::of(subview.get());
    QWidget* const widget = below.widget();
    if (!widget || below.isHidden()) continue;
    if (widget->focusPolicy() & Qt::TabFocus) {
      stops.push_back({widget, {widget->mapTo(&root, QPoint()), widget->size()}});
    }
    collectStops(below, root, stops);
  }
}

// Splits what `before` sorts wherever `parts` sees a gap between the stops so far and the next one,
// and hands each group on.
template <class Before, class Parts, class Handle>
void forEachGroup(std::vector<Stop> stops, Before before, Parts parts, Handle handle) {
  std::stable_sort(stops.begin(), stops.end(), before);
  std::vector<Stop> group;
  for (const Stop& stop : stops) {
    if (!group.empty() && parts(group, stop)) {
      handle(group);
      group.clear();
    }
    group.push_back(stop);
  }
  if (!group.empty()) handle(group);
}

bool isLeftOf(const Stop& a, const Stop& b) { return a.place.left() < b.place.left(); }
bool isAbove(const Stop& a, const Stop& b) { return a.place.center().y() < b.place.center().y(); }

bool beginsColumn(const std::vector<Stop>& column, const Stop& stop) {
  return std::all_of(column.begin(), column.end(),
                     [&](const Stop& each) { return each.place.right() < stop.place.left(); });
}

bool beginsRow(const std::vector<Stop>& row, const Stop& stop) {
  return stop.place.center().y() - row.front().place.center().y() > kSameRow;
}

std::vector<Stop> inReadingOrder(const std::vector<Stop>& stops) {
  std::vector<Stop> ordered;
  forEachGroup(stops, isLeftOf, beginsColumn, [&](const std::vector<Stop>& column) {
    forEachGroup(column, isAbove, beginsRow, [&](std::vector<Stop> row) {
      std::stable_sort(row.begin(), row.end(), isLeftOf);
      ordered.insert(ordered.end(), row.begin(), row.end());
    });
  });
  return ordered;
}

}  // namespace

void QtToolkit::orderTabs(View& root) noexcept {
  QtViewCore* const core = QtViewCore::of(&root);
  if (!core || !core->widget()) return;
  std::vector<Stop> stops;
  collectStops(*core, *core->widget(), stops);
  const std::vector<Stop> ordered = inReadingOrder(stops);
  for (std::size_t i = 1; i < ordered.size(); ++i) {
    QWidget::setTabOrder(ordered[i - 1].widget, ordered[i].widget);
  }
}

}  // namespace cutline
