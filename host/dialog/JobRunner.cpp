#include "host/dialog/JobRunner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {

namespace {

constexpr int kPollMilliseconds = 400;
constexpr int kMostMissed = 10;  // answers in a row

}  // namespace

JobRunner::JobRunner(std::shared_ptr<PrintServer> server, QObject* parent)
    : QObject(parent), mServer(std::move(server)) {
  mTimer.setSingleShot(true);
  mTimer.setInterval(kPollMilliseconds);
  connect(&mTimer, &QTimer::timeout, this, &JobRunner::poll);
}

// Asked to stop before its document is there, it ends without having sent anything.
void JobRunner::start(const PrintRequest& request, Composing composing) {
  mIsRunning = true;
  mJobId = 0;
  mMissed = 0;
  mDestination = request.destination;
  mIsGivenUp = std::make_shared<std::atomic<bool>>(false);
  mStop = std::stop_source();
  mBackground.start([this, server = mServer, job = PrintRequest(request),
                     composing = std::move(composing), stop = mStop.get_token(),
                     isGivenUp = mIsGivenUp,
                     post = mBackground.poster()]() mutable -> Background::Delivery {
    const Result<ComposedDocument> composed = composing ? composing(stop) : ComposedDocument();
    if (!composed) return [this, error = composed.error()] { takeJob(error); };
    if (composed->file) job.path = composed->file->path();
    const auto progress = [this, &post, &isGivenUp](std::uint64_t sent, std::uint64_t total) {
      post([this, sent, total] { emit spooling(sent, total); });
      return !isGivenUp->load();
    };
    return [this, jobId = server->submit(job, progress)] { takeJob(jobId); };
  });
}

void JobRunner::takeJob(const Result<int>& jobId) {
  if (!jobId) {
    mIsRunning = false;
    if (mIsGivenUp->load()) return emit cancelled();
    return emit failed(asLine(jobId.error().sentence));
  }
  mJobId = *jobId;
  emit submitted(mJobId);
  if (mIsGivenUp->load()) askToCancel();
  poll();
}

void JobRunner::cancel() {
  if (!mIsRunning || mIsGivenUp->exchange(true)) return;
  mStop.request_stop();
  if (isSubmitted()) askToCancel();
}

void JobRunner::askToCancel() {
  mBackground.start([this, server = mServer, destination = mDestination,
                     jobId = mJobId]() -> Background::Delivery {
    return [this, asked = server->cancel(destination, jobId)] {
      if (asked || !mIsRunning) return;
      mIsGivenUp->store(false);
      mIsRunning = false;
      mTimer.stop();
      emit failed(asLine(asked.error().sentence));
    };
  });
}

void JobRunner::poll() {
  mBackground.start([this, server = mServer, destination = mDestination,
                     jobId = mJobId]() -> Background::Delivery {
    return [this, status = server->status(destination, jobId)] { takeStatus(status); };
  });
}

void JobRunner::takeStatus(const Result<JobStatus>& status) {
  if (!mIsRunning) return;
  if (!status) return missStatus(translated(status.error().sentence));
  mMissed = 0;
  emit stateChanged(*status);
  if (status->isFinal()) return endWith(*status);
  mTimer.start();
}

void JobRunner::missStatus(const QString& reason) {
  if (++mMissed < kMostMissed) return mTimer.start();
  mIsRunning = false;
  emit failed(tr("Job %1 was sent, but the server no longer tells its state: %2. It may still be "
                 "printed.")
                  .arg(mJobId)
                  .arg(reason));
}

void JobRunner::endWith(const JobStatus& status) {
  mIsRunning = false;
  if (status.state == JobState::completed) return emit printed();
  if (status.state == JobState::canceled && mIsGivenUp->load()) return emit cancelled();
  const QString words = toQString(status.message);
  const QString what =
      status.state == JobState::canceled
          ? tr("Job %1 was cancelled at the printer").arg(mJobId)
          : tr("%1 gave job %2 up").arg(toQString(mDestination.printer), QString::number(mJobId));
  const QString why = words.isEmpty() ? QString() : tr(" (%1)").arg(words);
  emit failed(tr("%1%2. See that the printer is ready, then print again.").arg(what, why));
}

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

void JobProgress::showComposing() {
  showText(tr("Composing..."));
  mBar->setRange(0, 0);
  mCancel->setEnabled(true);
  mLeave->hide();
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
