// How far a job is, and how it ended.
#pragma once

#include <QWidget>

#include "cups/JobStatus.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace cutline {

// How far the job is, in place of the dialog's buttons. Nothing to click stands where Print stood.
class JobProgress : public QWidget {
  Q_OBJECT

 public:
  explicit JobProgress(QWidget* parent = nullptr);

  void showComposing();
  // Of the job altogether; 0 where that is not known.
  void setLabels(quint64 labels) { mLabels = labels; }
  void showSpooling(const QString& printer, quint64 sent, quint64 total);
  void showState(int jobId, const JobStatus& status);
  // The server does not answer how the job is, or the wish to cancel it.
  void showSilence(int jobId, bool isCancelling);
  void showCancelling();
  // It was refused; it can be tried again.
  void endCancelling();

 signals:
  void cancelRequested();
  // The job goes on without the dialog.
  void leaveRequested();

 private:
  void showText(const QString& text);
  QString textOf(int jobId, const JobStatus& status) const;

  quint64 mLabels = 0;
  QPushButton* mCancel;
  QPushButton* mLeave;
  QLabel* mText;
  QProgressBar* mBar;
};

// That the last job is out, beside the buttons; takes its room also while it says nothing.
class JobOutcome : public QWidget {
  Q_OBJECT

 public:
  explicit JobOutcome(QWidget* parent = nullptr);

  // 0 where their number is not known.
  void showPrinted(quint64 labels);
  void clear();
  bool isShown() const;

 private:
  QWidget* mMessage;
  QLabel* mText;
};

}  // namespace cutline
