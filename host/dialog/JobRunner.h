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
  // Gives the job up: nothing more of it is sent, or the server is asked to cancel it. A job that
  // is out by then is printed all the same.
  void cancel();

  bool isRunning() const noexcept { return mIsRunning; }
  // The server has the whole document.
  bool isSubmitted() const noexcept { return mJobId > 0; }
  int jobId() const noexcept { return mJobId; }  // 0 before that

 signals:
  // Of the documents, before any selection.
  void composed(int documentPages);
  void spooling(quint64 sent, quint64 total);
  void submitted(int jobId);
  void stateChanged(const cutline::JobStatus& status);
  void printed();
  // `pages` had come out by the server's count.
  void cancelled(int pages);
  // The job goes on all the same.
  void cancelRefused(const QString& reason);
  void failed(const QString& reason);

 private:
  void takeJob(const Result<int>& jobId);
  void poll();
  void takeStatus(const Result<JobStatus>& status);
  void missStatus(const QString& reason);
  void endWith(const JobStatus& status);
  void askToCancel();
  void takeRefusal(const Error& refusal, const Result<JobStatus>& status);

  std::shared_ptr<PrintServer> mServer;
  DestinationName mDestination;
  std::shared_ptr<std::atomic<bool>> mIsGivenUp;
  std::stop_source mStop;
  bool mIsRunning = false;
  int mJobId = 0;
  int mMissed = 0;
  QTimer mTimer;
  Background mBackground;
};

}  // namespace cutline
