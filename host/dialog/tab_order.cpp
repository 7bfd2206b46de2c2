#include "host/dialog/tab_order.h"

#include <QWidget>

namespace cutline {
namespace {

bool takesTabs(const QWidget& widget) {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

std::vector<QWidget*> tabsUnder(QWidget& root) {
  std::vector<QWidget*> found;
  QWidget* each = &root;
  do {
    const bool isInside = each == &root || root.isAncestorOf(each);
    if (isInside && takesTabs(*each)) found.push_back(each);
    each = each->nextInFocusChain();
  } while (each != &root);
  return found;
}

}  // namespace

void chainTabs(const std::vector<QWidget*>& roots) {
  QWidget* last = nullptr;
  for (QWidget* root : roots) {
    for (QWidget* each : tabsUnder(*root)) {
      if (last) QWidget::setTabOrder(last, each);
      last = each;
    }
  }
}

}  // namespace cutline
