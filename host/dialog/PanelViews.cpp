#include "host/dialog/PanelViews.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <memory>

#include "platform/ports/PopUpButton.h"
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
  mColumn->addWidget(makeHeadingRow(panel));
  auto* box = new QWidget(this);
  setAccessibleRole(*box, QAccessible::Grouping);
  box->setAccessibleName(toQString(panel.name));
  auto* inside = new QVBoxLayout(box);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(widget);
  mColumn->addWidget(box, 0, Qt::AlignLeft);
  widget->setVisible(!panel.view->isHidden());
  QtToolkit::orderTabs(*panel.view);
}

// A panel's pop-up has words for those who hear it alone; the heading has them for everybody, right
// above it.
QWidget* PanelFrame::makeHeadingRow(const PanelEntry& panel) {
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(0);
  QLabel* const heading = makeHeading(toQString(panel.name), row);
  line->addWidget(heading);
  for (const std::shared_ptr<View>& each : panel.view->subviews()) {
    if (dynamic_cast<PopUpButton*>(each.get()) == nullptr) continue;
    heading->setMinimumWidth(static_cast<int>(each->frame().origin.x));
    auto* caption =
        new QLabel(SummaryView::tr("%1:").arg(toQString(each->accessibilityLabel())), row);
    caption->setTextFormat(Qt::PlainText);
    line->addWidget(caption);
  }
  line->addStretch(1);
  return row;
}

void PanelFrame::sayThatThereAreNone() {
  auto* text = new QLabel(tr("This printer has no panel of its own. Its options are under "
                             "\"More printer options\"."),
                          this);
  text->setWordWrap(true);
  mColumn->addWidget(text);
}

namespace {

constexpr int kColumnsOfGrid = 3;  // title, value, gap
constexpr int kRowGap = 2;
constexpr int kGapWidth = 24;

QFont boldFont(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

SummaryView::SummaryView(QWidget* parent) : QWidget(parent), mGrid(new QGridLayout(this)) {
  mGrid->setContentsMargins(0, 0, 0, 0);
  mGrid->setHorizontalSpacing(8);
  mGrid->setVerticalSpacing(2);
  mGrid->setColumnMinimumWidth(kRowGap, kGapWidth);
  mGrid->setColumnStretch(kColumnsOfGrid + 1, 1);
  setAccessibleRole(*this, QAccessible::Grouping);
  setAccessibleName(tr("Summary"));
}

void SummaryView::setLines(const std::vector<SummaryLine>& lines) {
  if (mRows.size() != lines.size()) makeRows(lines.size());
  QStringList words;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    mRows[i].title->setText(tr("%1:").arg(toQString(lines[i].title)));
    mRows[i].value->setText(toQString(lines[i].value));
    words.append(mRows[i].title->text() + QLatin1Char(' ') + mRows[i].value->text());
  }
  tellAccessibleDescription(*this, words.join(QLatin1Char('\n')));
}

void SummaryView::makeRows(std::size_t count) {
  for (const Row& row : mRows) {
    delete row.title;
    delete row.value;
  }
  mRows.clear();
  const int inColumn = static_cast<int>((count + 1) / 2);
  for (int i = 0; i < static_cast<int>(count); ++i) {
    mRows.push_back(makeRow(i % inColumn, i / inColumn * kColumnsOfGrid));
  }
}

SummaryView::Row SummaryView::makeRow(int row, int column) {
  const Row made{new QLabel(this), new QLabel(this)};
  for (QLabel* label : {made.title, made.value}) label->setTextFormat(Qt::PlainText);
  made.value->setFont(boldFont(font()));
  mGrid->addWidget(made.title, row, column);
  mGrid->addWidget(made.value, row, column + 1);
  return made;
}

}  // namespace cutline
