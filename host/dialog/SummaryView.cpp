#include "host/dialog/SummaryView.h"

#include <QGridLayout>
#include <QLabel>

#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kColumnsOfGrid = 3;  // title, value, gap
constexpr int kGap = 2;
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
  mGrid->setColumnMinimumWidth(kGap, kGapWidth);
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
