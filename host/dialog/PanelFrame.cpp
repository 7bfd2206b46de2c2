#include "host/dialog/PanelFrame.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <memory>

#include "qt/QtText.h"
#include "qt/QtToolkit.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

// As wide as panels are designed, so that the dialog keeps its width without one.
constexpr int kUsualWidth = 560;

QLabel* makeHeading(const QString& text, QWidget* parent) {
  auto* heading = new QLabel(text, parent);
  heading->setTextFormat(Qt::PlainText);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  return heading;
}

}  // namespace

PanelFrame::PanelFrame(QWidget* parent) : QWidget(parent), mColumn(new QVBoxLayout(this)) {
  mColumn->setContentsMargins(0, 0, 0, 0);
  mColumn->setSpacing(4);
  setMinimumWidth(kUsualWidth);
}

void PanelFrame::setPanels(const std::vector<PanelEntry>& panels) {
  releasePanels();
  for (const PanelEntry& panel : panels) {
    if (panel.view) addPanel(panel);
  }
  if (mViews.empty()) sayThatThereAreNone();
}

void PanelFrame::releasePanels() {
  for (const std::shared_ptr<View>& view : mViews) {
    QWidget* widget = QtToolkit::widgetOf(*view);
    if (!widget) continue;
    widget->hide();
    widget->setParent(nullptr);
  }
  mViews.clear();
  while (QLayoutItem* item = mColumn->takeAt(0)) {
    const std::unique_ptr<QLayoutItem> owned(item);
    delete item->widget();
  }
}

void PanelFrame::addPanel(const PanelEntry& panel) {
  QWidget* widget = QtToolkit::widgetOf(*panel.view);
  if (!widget) return;
  mViews.push_back(panel.view);
  mColumn->addWidget(makeHeading(toQString(panel.name), this));
  auto* box = new QFrame(this);
  box->setFrameShape(QFrame::StyledPanel);
  setAccessibleRole(*box, QAccessible::Grouping);
  box->setAccessibleName(toQString(panel.name));
  auto* inside = new QVBoxLayout(box);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(widget);
  mColumn->addWidget(box, 0, Qt::AlignLeft);
  widget->setVisible(!panel.view->isHidden());
  QtToolkit::orderTabs(*panel.view);
}

void PanelFrame::sayThatThereAreNone() {
  auto* text = new QLabel(tr("This printer has no panel of its own. Its options are under "
                             "\"More printer options\"."),
                          this);
  text->setWordWrap(true);
  mColumn->addWidget(text);
}

}  // namespace cutline
