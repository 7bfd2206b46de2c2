#include "host/dialog/JobRunner.h"

#include <utility>

#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"

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
    if (composed->file) {
      job.path = composed->file->path();
      post([this, pages = composed->report.documentPages] { emit this->composed(pages); });
    }
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
    if (mIsGivenUp->load()) return emit cancelled(0);
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

// A server refuses to cancel what has ended, so a refusal is asked after.
void JobRunner::askToCancel() {
  mBackground.start([this, server = mServer, destination = mDestination,
                     jobId = mJobId]() -> Background::Delivery {
    const Result<Done> asked = server->cancel(destination, jobId);
    if (asked) return {};
    return [this, refusal = asked.error(), status = server->status(destination, jobId)] {
      takeRefusal(refusal, status);
    };
  });
}

void JobRunner::takeRefusal(const Error& refusal, const Result<JobStatus>& status) {
  if (!mIsRunning) return;
  if (status && status->isFinal()) {
    mTimer.stop();
    return endWith(*status);
  }
  mIsGivenUp->store(false);
  emit cancelRefused(asLine(refusal.sentence));
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
  if (status.state == JobState::canceled && mIsGivenUp->load())
    return emit cancelled(status.pages.value_or(0));
  const QString words = toQString(status.message);
  const QString what =
      status.state == JobState::canceled
          ? tr("Job %1 was cancelled at the printer").arg(mJobId)
          : tr("%1 gave job %2 up").arg(toQString(mDestination.printer), QString::number(mJobId));
  const QString why = words.isEmpty() ? QString() : tr(" (%1)").arg(words);
  emit failed(tr("%1%2. See that the printer is ready, then print again.").arg(what, why));
}

}  // namespace cutline
