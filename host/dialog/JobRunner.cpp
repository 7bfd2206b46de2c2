#include "host/dialog/JobRunner.h"

#include <utility>

#include "host/dialog/DialogLanguage.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

constexpr int kPollMilliseconds = 400;
constexpr int kMostMissed = 10;  // answers in a row of a server that does answer
constexpr int kSilenceMilliseconds = 3000;
constexpr int kGivingUpMilliseconds = 700;

// The server takes options that the printer no longer has, and prints something else.
Result<Done> checkSetUp(PrintServer& server, const PrintRequest& job) {
  if (job.setUpSince == 0) return Done{};
  const Result<Destination> now = server.find(job.destination);
  if (!now || now->setUpSince == 0 || now->setUpSince == job.setUpSince) return Done{};
  return Error{Sentence(Phrase("host",
                               "\"%1\" was set up anew on the print server: look at the settings, "
                               "then print again"),
                        {job.destination.text()})};
}

}  // namespace

// Also of what was sent by then: who gives up next is seen before the last byte goes, or else sees
// here that it may have gone.
bool JobRunner::Sending::noteSent(std::uint64_t sent, std::uint64_t total) {
  mayBeWhole = sent + 1 >= total;
  return !isGivenUp;
}

JobRunner::JobRunner(std::shared_ptr<PrintServer> server, QObject* parent)
    : QObject(parent), mServer(std::move(server)) {
  for (QTimer* timer : {&mTimer, &mSilence, &mPatience}) timer->setSingleShot(true);
  mTimer.setInterval(kPollMilliseconds);
  mSilence.setInterval(kSilenceMilliseconds);
  mPatience.setInterval(kGivingUpMilliseconds);
  connect(&mTimer, &QTimer::timeout, this, &JobRunner::poll);
  connect(&mSilence, &QTimer::timeout, this, &JobRunner::noteSilence);
  connect(&mPatience, &QTimer::timeout, this, &JobRunner::letGo);
}

// Asked to stop before its document is there, it ends without having sent anything.
void JobRunner::start(const PrintRequest& request, Composing composing) {
  mIsRunning = true;
  mIsSilent = mAsksAgain = false;
  mJobId = 0;
  mMissed = 0;
  mSending = std::make_shared<Sending>();
  mSending->destination = request.destination;
  mStop = std::stop_source();
  mBackground.start([this, server = mServer, job = PrintRequest(request),
                     composing = std::move(composing), stop = mStop.get_token(), sending = mSending,
                     post = mBackground.poster()]() mutable -> Background::Delivery {
    const Result<ComposedDocument> composed = composing ? composing(stop) : ComposedDocument();
    if (!composed) return [this, sending, error = composed.error()] { takeJob(sending, error); };
    if (composed->file) {
      job.path = composed->file->path();
      post([this, sending, pages = composed->report.documentPages] {
        if (isOf(sending)) emit this->composed(pages);
      });
    }
    if (const Result<Done> checked = checkSetUp(*server, job); !checked)
      return [this, sending, error = checked.error()] { takeJob(sending, error); };
    const auto progress = [this, &post, &sending](std::uint64_t sent, std::uint64_t total) {
      post([this, sending, sent, total] {
        if (isOf(sending) && !isGivenUp()) emit spooling(sent, total);
      });
      return sending->noteSent(sent, total);
    };
    return [this, sending, jobId = server->submit(job, progress)] { takeJob(sending, jobId); };
  });
}

void JobRunner::takeJob(const SharedSending& sending, const Result<int>& jobId) {
  if (!isOf(sending)) return takeLate(sending, jobId);
  mPatience.stop();
  if (!jobId) return endUnsent(jobId.error());
  mJobId = *jobId;
  emit submitted(mJobId);
  if (isGivenUp()) askToCancel();
  poll();
}

void JobRunner::endUnsent(const Error& error) {
  mIsRunning = false;
  if (isGivenUp() && !leavesJobInDoubt(error)) return emit cancelled(0);
  emit failed(asLine(error.sentence));
}

void JobRunner::cancel() {
  if (!mIsRunning || mSending->isGivenUp.exchange(true)) return;
  mStop.request_stop();
  if (isSubmitted()) return askToCancel();
  mPatience.start();
}

// The thread that sends goes on until it knows what became of the job.
void JobRunner::letGo() {
  if (!mIsRunning || isSubmitted()) return;
  mIsRunning = false;
  if (mSending->mayBeWhole) return emit leftInDoubt();
  emit cancelled(0);
}

void JobRunner::takeLate(const SharedSending& sending, const Result<int>& jobId) {
  if (jobId) return takeBack(sending, *jobId);
  if (!sending->mayBeWhole) return;
  if (leavesJobInDoubt(jobId.error())) return emit doubtEnded(asLine(jobId.error().sentence));
  emit doubtEnded(tr("The job was cancelled."));
}

// Asks for its state too, as whoever counts the jobs that are left learns by that of its end.
void JobRunner::takeBack(const SharedSending& sending, int jobId) {
  mBackground.start([this, server = mServer, sending, jobId]() -> Background::Delivery {
    const Result<Done> asked = server->cancel(sending->destination, jobId);
    server->status(sending->destination, jobId);
    return [this, asked] {
      emit doubtEnded(asked ? tr("The job was cancelled.") : asLine(asked.error().sentence));
    };
  });
}

JobRunner::Answer JobRunner::askStatus(PrintServer& server, const DestinationName& destination,
                                       int jobId) {
  Answer answer{jobId, server.status(destination, jobId)};
  answer.isServerGone = !answer.status && !server.answers();
  return answer;
}

// A server refuses to cancel what has ended, so a refusal is asked after.
void JobRunner::askToCancel() {
  mBackground.start([this, server = mServer, destination = mSending->destination,
                     jobId = mJobId]() -> Background::Delivery {
    const Result<Done> asked = server->cancel(destination, jobId);
    if (asked) return {};
    return [this, refusal = asked.error(), answer = askStatus(*server, destination, jobId)] {
      takeRefusal(refusal, answer);
    };
  });
}

void JobRunner::takeRefusal(const Error& refusal, const Answer& answer) {
  if (!isOf(answer)) return;
  if (answer.isServerGone) {
    mAsksAgain = true;
    mIsSilent = false;  // there is more to say of it now
    return noteSilence();
  }
  if (answer.status && answer.status->isFinal()) {
    mTimer.stop();
    return endWith(*answer.status);
  }
  mSending->isGivenUp = false;
  emit cancelRefused(asLine(refusal.sentence));
}

void JobRunner::poll() {
  mSilence.start();
  mBackground.start([this, server = mServer, destination = mSending->destination,
                     jobId = mJobId]() -> Background::Delivery {
    return [this, answer = askStatus(*server, destination, jobId)] { takeStatus(answer); };
  });
}

// The server has the job, and goes on with it when it is back: there is nothing to give up.
void JobRunner::takeStatus(const Answer& answer) {
  if (!isOf(answer)) return;
  mSilence.stop();
  if (answer.isServerGone) {
    noteSilence();
    return mTimer.start();
  }
  if (!answer.status) return missStatus(translated(answer.status.error().sentence));
  mMissed = 0;
  mIsSilent = false;
  emit stateChanged(*answer.status);
  if (answer.status->isFinal()) return endWith(*answer.status);
  if (std::exchange(mAsksAgain, false)) askToCancel();
  mTimer.start();
}

void JobRunner::noteSilence() {
  if (mIsRunning && !std::exchange(mIsSilent, true)) emit serverSilent();
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
  mSilence.stop();
  if (status.state == JobState::completed) return emit printed();
  if (status.state == JobState::canceled && isGivenUp())
    return emit cancelled(status.pages.value_or(0));
  const QString words = toQString(status.message);
  const QString what =
      status.state == JobState::canceled
          ? tr("Job %1 was cancelled at the printer").arg(mJobId)
          : tr("%1 gave job %2 up")
                .arg(toQString(mSending->destination.printer), QString::number(mJobId));
  const QString why = words.isEmpty() ? QString() : tr(" (%1)").arg(words);
  emit failed(tr("%1%2. See that the printer is ready, then print again.").arg(what, why));
}

}  // namespace cutline
