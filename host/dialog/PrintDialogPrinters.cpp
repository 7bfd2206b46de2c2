// The part of PrintDialog that has to do with the print server: which printers there are, which one
// is open, how it is.
#include <QPushButton>

#include "host/core/CommandLine.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetKeeper.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr int kStateMilliseconds = 5000;

}  // namespace

void PrintDialog::connectServer() {
  connect(mServer, &ServerClient::printersListed, this, &PrintDialog::takePrinters);
  connect(mServer, &ServerClient::listingFailed, this,
          [this](const QString& reason) { mNotices->setNotice(NoticeTopic::failure, reason); });
  connect(mServer, &ServerClient::printerOpened, this, &PrintDialog::openPrinter);
  connect(mServer, &ServerClient::openingFailed, this, &PrintDialog::openingFailed);
  connect(mServer, &ServerClient::stateKnown, this, &PrintDialog::takeState);
  mStateTimer.setInterval(kStateMilliseconds);
  connect(&mStateTimer, &QTimer::timeout, this, [this] {
    if (mModel.hasQueue()) mServer->askState(mModel.destination().name);
  });
}

void PrintDialog::showWaiting(const QString& text) {
  mSettings->setEnabled(false);
  mMoreButton->setEnabled(false);
  mOpen->setEnabled(false);
  mPrint->setEnabled(false);
  mPrinterBar->setWaiting(text);
  mStripPane->strip().setMessage(text);
}

void PrintDialog::showFailure(const QString& reason) {
  mExitStatus = kExitError;
  mNotices->setNotice(NoticeTopic::failure, reason);
  mPrinterBar->setWaiting(tr("No printer"));
  mStripPane->strip().setMessage({});
}

void PrintDialog::openPrinter(const PrinterChoice& choice) {
  setUpdatesEnabled(false);
  mSettings->setEnabled(true);
  mPanelFrame->releasePanels();
  mModel.openPrinter(choice);
  setUpdatesEnabled(true);
}

void PrintDialog::openingFailed(const QString& reason) {
  mPrinterBar->setCurrent(mModel.destination());
  mNotices->setNotice(NoticeTopic::failure, reason);
  refreshPrintButton();
}

void PrintDialog::startWatching() {
  if (!mModel.hasQueue()) return;
  mServer->listPrinters();
  mStateTimer.start();
}

void PrintDialog::choosePrinter(const QString& name) {
  const Destination* printer = mPresets->find({toUtf8(name), std::nullopt});
  if (!printer) return;
  mServer->openPrinter(*printer);
  mPrinterBar->setWaiting(tr("Opening %1...").arg(name));
  mNotices->clear(NoticeTopic::printer);
  refreshPrintButton();
}

void PrintDialog::takePrinters(const std::vector<Destination>& destinations) {
  mPrinterBar->setPrinters(destinations);
  mPrinterBar->setCurrent(mModel.destination());
  mPresets->setDestinations(destinations);
}

void PrintDialog::takeState(const Destination& destination) {
  if (destination.name.printer != mModel.destination().name.printer || mServer->isOpening()) return;
  mPrinterBar->setState(destination);
  const QString name = toQString(destination.name.printer);
  QString notice;
  if (destination.state == PrinterState::stopped) {
    notice = tr("%1 does not print now (%2). A job waits until the printer is ready again.")
                 .arg(name, translated(destination.stateText()));
  }
  if (!destination.acceptsJobs) {
    notice = tr("%1 does not accept jobs. Choose another printer, or ask whoever looks after this "
                "one.")
                 .arg(name);
  }
  mNotices->setNotice(NoticeTopic::printer, notice);
}

}  // namespace cutline
