#include "host/dialog/JobProgress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>

#include "host/dialog/translated.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kWhole = 100;

}  // namespace

JobProgress::JobProgress(QWidget* parent)
    : QWidget(parent),
      mText(new QLabel(this)),
      mBar(new QProgressBar(this)),
      mCancel(new QPushButton(tr("Cancel &job"), this)),
      mLeave(new QPushButton(tr("Close and &let it print"), this)) {
  setAccessibleRole(*this, QAccessible::AlertMessage);
  mText->setTextFormat(Qt::PlainText);
  mBar->setTextVisible(false);
  mBar->setAccessibleName(tr("Progress of the job"));
  mBar->setMaximumHeight(fontMetrics().height());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mText, 1);
  row->addWidget(mBar, 1);
  row->addWidget(mLeave);
  row->addWidget(mCancel);
  // Whoever presses Return twice to print must not cancel the job by it.
  for (QPushButton* button : {mCancel, mLeave}) button->setAutoDefault(false);
  connect(mCancel, &QPushButton::clicked, this, &JobProgress::cancelRequested);
  connect(mLeave, &QPushButton::clicked, this, &JobProgress::leaveRequested);
}

void JobProgress::showText(const QString& text) {
  mText->setText(text);
  tellAccessibleName(*this, text);
  tellAccessibleDescription(*mBar, text);
}

void JobProgress::showSpooling(const QString& printer, quint64 sent, quint64 total) {
  showText(tr("Sending to %1...").arg(printer));
  mBar->setRange(0, total > 0 ? kWhole : 0);
  if (total > 0) mBar->setValue(static_cast<int>(std::min(sent, total) * kWhole / total));
  mCancel->setEnabled(true);
  mLeave->hide();
}

void JobProgress::showState(int jobId, const JobStatus& status) {
  const QString message = toQString(status.message);
  const QString state = translated(status.text());
  showText(message.isEmpty() ? tr("Job %1: %2").arg(jobId).arg(state)
                             : tr("Job %1: %2 - %3").arg(QString::number(jobId), state, message));
  mBar->setRange(0, 0);
  mLeave->show();
}

void JobProgress::showCancelling() {
  showText(tr("Cancelling..."));
  mCancel->setEnabled(false);
}

}  // namespace cutline
