// The part of PrintDialog that has to do with the print server: which printers there are, which one
// is open, how it is.
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <initializer_list>

#include "host/core/CommandLine.h"
#include "host/core/OptionTable.h"
#include "host/dialog/CuttingForm.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PresetKeeper.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr int kStateMilliseconds = 1000;
constexpr int kTicksBetweenLists = 10;

// Of the settings before, in the words of the PPD that they were for, what those after lack.
QString lostSettings(const PpdFile& ppd, const OptionList& before, const OptionList& after) {
  const OptionTable options(ppd);
  QStringList lost;
  for (const auto& option : before) {
    const auto& [keyword, choice] = option;
    if (!options.find(keyword) || std::ranges::find(after, option) != after.end()) continue;
    lost << toQString(options.optionText(keyword) + ": " + options.choiceText(keyword, choice));
  }
  return lost.join(QStringLiteral(", "));
}

}  // namespace

void PrintDialog::connectServer() {
  connect(mServer, &ServerClient::printersListed, this, &PrintDialog::takePrinters);
  connect(mServer, &ServerClient::listingFailed, this,
          [this](const QString& reason) { mNotices->setNotice(NoticeTopic::printer, reason); });
  connect(mServer, &ServerClient::printerOpened, this, &PrintDialog::takeOpened);
  connect(mServer, &ServerClient::printerRead, this, &PrintDialog::takeSetUp);
  connect(mServer, &ServerClient::openingFailed, this, &PrintDialog::openingFailed);
  connect(mServer, &ServerClient::stateKnown, this, &PrintDialog::takeState);
  connect(mServer, &ServerClient::stateFailed, this,
          [this](const QString& reason) { showStateProblem(tr("Not available"), reason); });
  connect(mServer, &ServerClient::serverSlow, this, [this] {
    if (!mServer->isOpening()) mPrinterBar->setWaiting(tr("Waiting for the print server..."));
  });
  connect(mServer, &ServerClient::serverGone, this, [this] {
    showStateProblem(tr("No answer"),
                     tr("The print server does not answer. Is the computer that has the printer "
                        "switched on and connected? Printing goes on when it answers again."));
  });
  connect(mServer, &ServerClient::serverBack, mServer, &ServerClient::listPrinters);
  mStateTimer.setInterval(kStateMilliseconds);
  connect(&mStateTimer, &QTimer::timeout, this, &PrintDialog::askServer);
}

// Without a printer there is only the list to ask for, and it may never come.
void PrintDialog::askServer() {
  if (mModel.hasQueue()) return mServer->askState(mModel.destination().name);
  if (++mTicks % kTicksBetweenLists == 0) mServer->listPrinters();
}

void PrintDialog::showStateProblem(const QString& state, const QString& words) {
  mPrinterBar->setProblem(state);
  mNotices->setNotice(NoticeTopic::printer, words);
}

void PrintDialog::showWaiting(const QString& text) {
  mSettings->setEnabled(false);
  mMoreButton->setEnabled(false);
  mOpen->setEnabled(false);
  mPrint->setEnabled(false);
  mPrinterBar->setWaiting(text);
  mStripPane->strip().setMessage(text);
}

// Another printer can be chosen, and nothing else.
void PrintDialog::showFailure(const QString& reason) {
  mExitStatus = kExitError;
  showWaiting(tr("No printer"));
  mCuttingForm->hide();
  mSummaryButton->hide();
  mStripPane->strip().setMessage({});
  mNotices->setNotice(NoticeTopic::failure, reason);
  mSettings->setEnabled(true);
  enableSettings(false);
}

void PrintDialog::enableSettings(bool isEnabled) {
  for (QWidget* each :
       std::initializer_list<QWidget*>{mPresetBar, mJobForm, mLayoutBar, mPanelFrame, mSummary})
    each->setEnabled(isEnabled);
}

// After a failure at the start the documents have not been looked at yet.
void PrintDialog::takeOpened(const PrinterChoice& choice) {
  const bool isFirst = !mModel.isOpen();
  openPrinter(choice);
  if (!isFirst) return;
  mExitStatus = kExitCancelled;
  loadDocument();
}

void PrintDialog::openPrinter(const PrinterChoice& choice) {
  setUpdatesEnabled(false);
  mSettings->setEnabled(true);
  enableSettings(true);
  mPanelFrame->releasePanels();
  mModel.openPrinter(choice);
  setUpdatesEnabled(true);
}

void PrintDialog::openingFailed(const QString& reason) {
  if (mModel.isOpen()) mPrinterBar->setCurrent(mModel.destination());
  mNotices->setNotice(NoticeTopic::failure, reason);
  refreshPrintButton();
}

void PrintDialog::startWatching() {
  if (mModel.isOpen() && !mModel.hasQueue()) return;
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
  if (mModel.isOpen()) mPrinterBar->select(mModel.destination());
  mPresets->setDestinations(destinations);
}

// Whoever administers the printer may change its driver at any time. What is open is taken as soon
// as nothing is printed and no list is open.
void PrintDialog::noteSetUp(const Destination& destination) {
  if (mSetUpSince == 0) mSetUpSince = destination.setUpSince;
  if (destination.setUpSince == 0 || destination.setUpSince == mSetUpSince) return;
  const bool isBusy = QApplication::activePopupWidget() || QApplication::activeModalWidget();
  if (!isPrinting() && !isBusy) mServer->readAgain(destination);
}

void PrintDialog::takeSetUp(const PrinterChoice& choice) {
  const Destination& now = choice.destination;
  if (now.name != mModel.destination().name || isPrinting() || mServer->isOpening()) return;
  mSetUpSince = now.setUpSince;
  const std::shared_ptr<PpdFile> before = mModel.ppdFile();
  if (choice.ppd->fingerprint() == before->fingerprint()) return;
  const Settings settings = mModel.settings();
  const QPointer<QWidget> focused = focusWidget();
  openPrinter(choice);
  mModel.restore(settings);
  // It was the panel's. Qt would go on to the next button, which Return would press from then on.
  if (!focused) mJobForm->focusCopies();
  const QString name = toQString(now.name.printer);
  const QString lost = lostSettings(*before, settings.options, mModel.settings().options);
  mNotices->setNotice(
      NoticeTopic::setUp,
      lost.isEmpty()
          ? tr("%1 was set up anew on the print server; your settings were kept.").arg(name)
          : tr("%1 was set up anew on the print server and no longer has: %2. Look at the settings "
               "before you print.")
                .arg(name, lost));
}

void PrintDialog::takeState(const Destination& destination) {
  if (destination.name.printer != mModel.destination().name.printer || mServer->isOpening()) return;
  noteSetUp(destination);
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
