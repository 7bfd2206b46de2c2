// One run of the dialog, from the search for its printer to its exit status.
#pragma once

#include <QApplication>
#include <QObject>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include "base/Result.h"
#include "host/core/CommandLine.h"
#include "host/core/DialogModule.h"
#include "host/core/HostPlatform.h"
#include "host/core/PrintModel.h"
#include "host/dialog/Background.h"
#include "host/dialog/PrintDialog.h"
#include "qt/QtToolkit.h"

namespace cutline {

class HeldJobPrintServer;
class JobLeftBehind;

// The printer that the dialog opens with, looked for on another thread while the toolkit is made.
// Also says why there is none, and whether the document exists.
using FirstPrinter = std::shared_future<Result<PrinterChoice>>;

// The thread is left alone when the dialog ends before the server has answered.
FirstPrinter startFindingFirstPrinter(const CommandLine& line);

// What the thread does. Without a named printer and without a default one it is the server's first.
Result<PrinterChoice> findFirstPrinter(const CommandLine& line);

// One run of the dialog: makes the toolkit and the platform, opens the printer, shows the dialog or
// takes its picture.
class DialogSession : public QObject {
  Q_OBJECT

 public:
  // `application` lives as long as the session.
  DialogSession(const DialogRequest& request, FirstPrinter printer);
  ~DialogSession() override;

  // The program's exit status.
  int run();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void awaitPrinter();
  void takePrinter(const Result<PrinterChoice>& printer);
  void open(const PrinterChoice& printer);
  QSize windowSize() const;
  void show();
  void didPaintFirst();
  void finishMeasuring();
  void takeSnapshot();
  void fail(const Error& error);
  void rememberJob();
  PrintSource source() const;
  std::shared_ptr<PrintServer> server();
  void giveUpHeldJob();
  void followJobLeftBehind() const;

  const CommandLine& mLine;
  PluginLoader& mPlugIns;
  const Installation& mInstallation;
  FirstPrinter mPrinter;
  QtToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
  std::shared_ptr<HeldJobPrintServer> mHeldJob;  // null for a dialog of one's own documents
  std::shared_ptr<JobLeftBehind> mLeft;
  std::unique_ptr<PrintDialog> mDialog;
  QSize mSize;                // of the window as it opens
  std::future<void> mPixels;  // ends before they can be others
  bool mIsComplete = false;
  bool mHasFailed = false;
  bool mHasPainted = false;
  bool mIsSeen = false;  // and nothing is left of that first painting
  bool mHasLabel = false;
  Background mBackground{kPatienceWithAnswers};
};

}  // namespace cutline
