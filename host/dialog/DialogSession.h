// One run of the dialog: makes the toolkit and the platform, opens the printer, shows the dialog or
// takes its picture.
#pragma once

#include <QApplication>
#include <QObject>
#include <memory>
#include <string>
#include <vector>

#include "host/core/DialogModule.h"
#include "host/core/HostPlatform.h"
#include "host/core/PrintModel.h"
#include "host/dialog/Background.h"
#include "host/dialog/FirstPrinter.h"
#include "host/dialog/PrintDialog.h"
#include "qt/QtToolkit.h"

namespace cutline {

class DialogSession : public QObject {
  Q_OBJECT

 public:
  // `application` lives as long as the session.
  DialogSession(const DialogRequest& request, FirstPrinter printer);

  // The program's exit status.
  int run();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void awaitPrinter();
  void takePrinter(const Result<PrinterChoice>& printer);
  void open(const PrinterChoice& printer);
  void show();
  void didPaintFirst();
  void takeSnapshot();
  void fail(const Error& error);
  PrintSource source() const;

  const CommandLine& mLine;
  PluginLoader& mPlugIns;
  const Installation& mInstallation;
  FirstPrinter mPrinter;
  QtToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
  std::unique_ptr<PrintDialog> mDialog;
  bool mIsComplete = false;
  bool mHasPainted = false;
  Background mBackground;
};

}  // namespace cutline
