#include "host/dialog/JobProgress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>

#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NoticeView.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kWhole = 100;

// How many labels are out, where the driver tells; 0 otherwise. It may count more than were asked
// for, such as a leader.
quint64 countedLabels(const JobStatus& status, quint64 labels) {
  if (status.state != JobState::processing || status.pages.value_or(0) <= 0) return 0;
  return std::min<quint64>(static_cast<quint64>(*status.pages), labels);
}

}  // namespace

JobProgress::JobProgress(QWidget* parent)
    : QWidget(parent),
      mCancel(new QPushButton(tr("Cancel &job"), this)),
      mLeave(new QPushButton(tr("Close and &let it print"), this)),
      mText(new QLabel(this)),
      mBar(new QProgressBar(this)) {
  setAccessibleRole(*this, QAccessible::AlertMessage);
  mText->setTextFormat(Qt::PlainText);
  mText->setWordWrap(true);  // a long one must not widen the window
  mBar->setTextVisible(false);
  mBar->setAccessibleName(tr("Progress of the job"));
  mBar->setMaximumHeight(fontMetrics().height());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mCancel);
  row->addWidget(mLeave);
  row->addWidget(mText, 1);
  row->addWidget(mBar, 1);
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

void JobProgress::showComposing() {
  showText(tr("Composing..."));
  mBar->setRange(0, 0);
  mCancel->setEnabled(true);
  mLeave->setEnabled(false);
}

void JobProgress::showSpooling(const QString& printer, quint64 sent, quint64 total) {
  showText(tr("Sending to %1...").arg(printer));
  mBar->setRange(0, total > 0 ? kWhole : 0);
  if (total > 0) mBar->setValue(static_cast<int>(std::min(sent, total) * kWhole / total));
}

QString JobProgress::textOf(int jobId, const JobStatus& status) const {
  if (const quint64 out = countedLabels(status, mLabels); out > 0)
    return tr("Printing: label %1 of %2").arg(out).arg(mLabels);
  const QString message = toQString(status.message);
  const QString state = translated(status.text());
  return message.isEmpty() ? tr("Job %1: %2").arg(jobId).arg(state)
                           : tr("Job %1: %2 - %3").arg(QString::number(jobId), state, message);
}

void JobProgress::showState(int jobId, const JobStatus& status) {
  const quint64 out = countedLabels(status, mLabels);
  showText(textOf(jobId, status));
  mBar->setRange(0, out > 0 ? kWhole : 0);
  if (out > 0) mBar->setValue(static_cast<int>(out * kWhole / mLabels));
  mLeave->setEnabled(true);
}

void JobProgress::showSilence(int jobId, bool isCancelling) {
  showText(isCancelling
               ? tr("Job %1 is cancelled when the print server answers again").arg(jobId)
               : tr("Job %1 was sent; the print server does not answer how it is").arg(jobId));
  mBar->setRange(0, 0);
  mLeave->setEnabled(true);
}

void JobProgress::showCancelling() {
  showText(tr("Cancelling..."));
  mCancel->setEnabled(false);
}

void JobProgress::endCancelling() { mCancel->setEnabled(true); }

JobOutcome::JobOutcome(QWidget* parent)
    : QWidget(parent), mMessage(new QWidget(this)), mText(new QLabel(mMessage)) {
  setAccessibleRole(*mMessage, QAccessible::AlertMessage);
  mText->setTextFormat(Qt::PlainText);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch(1);
  row->addWidget(mMessage);
  auto* message = new QHBoxLayout(mMessage);
  message->setContentsMargins(0, 0, 0, 0);
  message->addWidget(new StatusIcon(Severity::good, mMessage));
  message->addWidget(mText);
  clear();
}

void JobOutcome::showPrinted(quint64 labels) {
  const QString several = labels == 0 ? tr("Printed.") : tr("Printed %1 labels.").arg(labels);
  mText->setText(labels == 1 ? tr("Printed 1 label.") : several);
  tellAccessibleName(*mMessage, mText->text());
  mMessage->show();
}

void JobOutcome::clear() {
  mMessage->hide();
  mText->clear();
}

bool JobOutcome::isShown() const { return !mText->text().isEmpty(); }

}  // namespace cutline
