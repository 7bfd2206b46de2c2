// A job on its way: what sends and follows it, and what shows how far it is.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>

#include "composition/Composer.h"
#include "cups/PrintJob.h"
#include "host/dialog/Background.h"
#include "host/dialog/PrintServer.h"

class QLabel;
class QProgressBar;
class QPushButton;

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
  // Gives the job up: nothing more of it is sent, or the server is asked to cancel it.
  void cancel();

  bool isRunning() const noexcept { return mIsRunning; }
  // The server has the whole document.
  bool isSubmitted() const noexcept { return mJobId > 0; }
  int jobId() const noexcept { return mJobId; }  // 0 before that

 signals:
  void spooling(quint64 sent, quint64 total);
  void submitted(int jobId);
  void stateChanged(const cutline::JobStatus& status);
  void printed();
  void cancelled();
  void failed(const QString& reason);

 private:
  void takeJob(const Result<int>& jobId);
  void poll();
  void takeStatus(const Result<JobStatus>& status);
  void missStatus(const QString& reason);
  void endWith(const JobStatus& status);
  void askToCancel();

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

// How far the job is, in place of the dialog's buttons.
class JobProgress : public QWidget {
  Q_OBJECT

 public:
  explicit JobProgress(QWidget* parent = nullptr);

  void showComposing();
  void showSpooling(const QString& printer, quint64 sent, quint64 total);
  void showState(int jobId, const JobStatus& status);
  void showCancelling();

 signals:
  void cancelRequested();
  // The job goes on without the dialog.
  void leaveRequested();

 private:
  void showText(const QString& text);

  QLabel* mText;
  QProgressBar* mBar;
  QPushButton* mCancel;
  QPushButton* mLeave;
};

}  // namespace cutline
