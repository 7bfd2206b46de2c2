// What sends a job and follows it until it has ended.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>

#include "composition/Composer.h"
#include "cups/PrintJob.h"
#include "host/dialog/Background.h"
#include "host/dialog/PrintServer.h"

namespace cutline {

// Composes and sends one job and follows it until it is over, in the background.
class JobRunner : public QObject {
  Q_OBJECT

 public:
  explicit JobRunner(std::shared_ptr<PrintServer> server, QObject* parent = nullptr);

  // Makes what is sent; called on another thread, and may block.
  using Composing = std::function<Result<ComposedDocument>(std::stop_token)>;

  // One job at a time; printed, cancelled or failed ends it. What is composed is sent in the place
  // of the request's path; without anything that composes, that is.
  void start(const PrintRequest& request, Composing composing);
  // Gives the job up: nothing more of it is sent, or the server is asked to cancel it, again and
  // again where it does not answer. A job that is out by then is printed all the same. While a
  // document is sent this ends the job within a second, whatever the server does.
  void cancel();

  bool isRunning() const noexcept { return mIsRunning; }
  // The server has the whole document.
  bool isSubmitted() const noexcept { return mJobId > 0; }
  int jobId() const noexcept { return mJobId; }  // 0 before that
  bool isGivenUp() const noexcept { return mSending && mSending->isGivenUp; }

 signals:
  // Of the documents, before any selection.
  void composed(int documentPages);
  void spooling(quint64 sent, quint64 total);
  void submitted(int jobId);
  void stateChanged(const cutline::JobStatus& status);
  // The server does not tell how the job is, or nothing of the wish to cancel it; once each, until
  // the next stateChanged.
  void serverSilent();
  void printed();
  // `pages` had come out by the server's count.
  void cancelled(int pages);
  // Given up, and the server does not tell whether it has the job. That ends the job here;
  // doubtEnded follows when the server has told, or the way to it was given up.
  void leftInDoubt();
  void doubtEnded(const QString& outcome);
  // The job goes on all the same.
  void cancelRefused(const QString& reason);
  void failed(const QString& reason);

 private:
  // What the thread that sends a document and the dialog's know of each other.
  struct Sending {
    DestinationName destination;
    std::atomic<bool> isGivenUp = false;
    // No more than the last byte is missing, so the server may have the job.
    std::atomic<bool> mayBeWhole = false;

    // False where nothing more is to be sent.
    bool noteSent(std::uint64_t sent, std::uint64_t total);
  };
  using SharedSending = std::shared_ptr<Sending>;
  // Of a job, as the server told it or did not.
  struct Answer {
    int jobId = 0;
    Result<JobStatus> status;
    bool isServerGone = false;
  };
  static Answer askStatus(PrintServer& server, const DestinationName& destination, int jobId);

  bool isOf(const SharedSending& sending) const { return mIsRunning && sending == mSending; }
  bool isOf(const Answer& answer) const { return mIsRunning && answer.jobId == mJobId; }
  void takeJob(const SharedSending& sending, const Result<int>& jobId);
  void endUnsent(const Error& error);
  void letGo();
  void takeLate(const SharedSending& sending, const Result<int>& jobId);
  void takeBack(const SharedSending& sending, int jobId);
  void poll();
  void takeStatus(const Answer& answer);
  void noteSilence();
  void missStatus(const QString& reason);
  void endWith(const JobStatus& status);
  void askToCancel();
  void takeRefusal(const Error& refusal, const Answer& answer);

  std::shared_ptr<PrintServer> mServer;
  SharedSending mSending;
  std::stop_source mStop;
  bool mIsRunning = false;
  bool mIsSilent = false;   // the server, and that was said
  bool mAsksAgain = false;  // to cancel, when the server answers
  int mJobId = 0;
  int mMissed = 0;
  QTimer mTimer;
  QTimer mSilence;   // from a question on
  QTimer mPatience;  // from cancel() on, while the document is sent
  Background mBackground{kPatienceWithAnswers};
};

}  // namespace cutline
