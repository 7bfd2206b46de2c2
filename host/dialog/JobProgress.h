// How far the job is, in place of the dialog's buttons.
#pragma once

#include <QWidget>

#include "cups/PrintJob.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace cutline {

class JobProgress : public QWidget {
  Q_OBJECT

 public:
  explicit JobProgress(QWidget* parent = nullptr);

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
