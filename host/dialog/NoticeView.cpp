#include "host/dialog/NoticeView.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <memory>

#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr std::array kSeverities = std::to_array<Severity>({
    Severity::error,    // failure
    Severity::info,     // refusal
    Severity::error,    // document
    Severity::warning,  // printer
    Severity::warning,  // conflicts
    Severity::info,     // deviations
});

Severity severityOf(NoticeTopic topic) { return kSeverities[static_cast<std::size_t>(topic)]; }

void emptyLayout(QLayout& layout) {
  while (QLayoutItem* item = layout.takeAt(0)) {
    const std::unique_ptr<QLayoutItem> owned(item);
    if (!item->widget()) continue;
    item->widget()->hide();
    item->widget()->deleteLater();
  }
}

}  // namespace

NoticeView::NoticeView(QWidget* parent) : QWidget(parent), mRows(new QVBoxLayout(this)) {
  mRows->setContentsMargins(0, 0, 0, 0);
  mRows->setSpacing(4);
  setVisible(false);
}

void NoticeView::setNotice(NoticeTopic topic, const QString& line) {
  setNotices(topic, line.isEmpty() ? QStringList() : QStringList(line));
}

void NoticeView::setNotices(NoticeTopic topic, const QStringList& lines) {
  if (mLines[topic] == lines) return;
  mLines[topic] = lines;
  rebuild();
}

QStringList NoticeView::notices(NoticeTopic topic) const {
  const auto found = mLines.find(topic);
  return found == mLines.end() ? QStringList() : found->second;
}

QString NoticeView::resolveTitle() { return tr("Chan&ge the others"); }

void NoticeView::rebuild() {
  emptyLayout(*mRows);
  for (const auto& [topic, lines] : mLines) {
    for (const QString& line : lines) {
      const bool isResolvable = topic == NoticeTopic::conflicts && line == lines.back();
      mRows->addWidget(makeRow(severityOf(topic), line, isResolvable));
    }
  }
  setVisible(mRows->count() > 0);
  if (!isVisible()) return;
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

QWidget* NoticeView::makeRow(Severity severity, const QString& line, bool isResolvable) {
  auto* row = new QWidget(this);
  setAccessibleRole(*row, QAccessible::AlertMessage);
  row->setAccessibleName(line);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new StatusIcon(severity, row), 0, Qt::AlignTop);
  auto* text = new QLabel(line, row);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  layout->addWidget(text, 1);
  if (!isResolvable) return row;
  auto* resolve = new QPushButton(resolveTitle(), row);
  resolve->setToolTip(tr("Keep the latest choice and change those that exclude it"));
  connect(resolve, &QPushButton::clicked, this, &NoticeView::resolveRequested);
  layout->addWidget(resolve, 0, Qt::AlignTop);
  return row;
}

}  // namespace cutline
