#include "host/dialog/PrintDialog.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <utility>

#include "host/core/CommandLine.h"
#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelFrame.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PresetKeeper.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "host/dialog/SummaryView.h"
#include "host/dialog/mnemonics.h"
#include "host/dialog/translated.h"
#include "host/dialog/window_mnemonics.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kStateMilliseconds = 5000;

bool isMirrored(const PpdFile& ppd) {
  const std::string keyword = "LxMirror";
  return OptionTable(ppd).position(keyword, ppd.markedChoice(keyword)) == 1;
}

StripDirection directionOf(const PpdFile& ppd) {
  return hasCutOptions(ppd) && !isLabelRoll(ppd) ? StripDirection::across : StripDirection::down;
}

QString fileNameOf(const std::string& path) {
  return toQString(path.substr(path.find_last_of('/') + 1));
}

QStringList sentencesOf(const std::vector<Deviation>& deviations) {
  QStringList lines;
  for (const Deviation& deviation : deviations) lines.append(translated(deviation.sentence));
  return lines;
}

QStringList sentencesOf(const std::vector<Sentence>& sentences) {
  QStringList lines;
  for (const Sentence& each : sentences) lines.append(translated(each));
  return lines;
}

}  // namespace

PrintDialog::PrintDialog(PrintModel& model, std::shared_ptr<PrintServer> server, PrintSource source)
    : mModel(model),
      mSource(std::move(source)),
      mExitStatus(kExitCancelled),
      mServer(new ServerClient(server, this)),
      mDocument(new DocumentLoader(this)),
      mJob(new JobRunner(server, this)),
      mSettings(new QWidget(this)),
      mPrinterBar(new PrinterBar(mSettings)),
      mPresetBar(new PresetBar(mSettings)),
      mJobForm(new JobForm(mSettings)),
      mPanelFrame(new PanelFrame(mSettings)),
      mSummary(new SummaryView(mSettings)),
      mNotices(new NoticeView(mSettings)),
      mPresets(new PresetKeeper(model, *mServer, *mPresetBar, *mNotices, this)),
      mStripPane(new StripPane(this)),
      mMoreOptions(new MoreOptionsPanel(this)),
      mMoreButton(new QPushButton(tr("&More printer options"), this)),
      mPrint(new QPushButton(tr("Pr&int"), this)),
      mCancel(new QPushButton(tr("Cancel"), this)),
      mBottom(new QStackedWidget(this)),
      mProgress(new JobProgress(this)) {
  setWindowTitle(mSource.title.empty() ? tr("Print")
                                       : tr("Print %1").arg(toQString(mSource.title)));
  makeLayout();
  connectSettings();
  connectDocument();
  connectServer();
  connectJob();
  mJobForm->focusCopies();
  mModel.setListener(this);
}

// The widgets outlive this part of the dialog by a moment, and one that loses the focus then still
// reports what was typed into it.
PrintDialog::~PrintDialog() {
  for (QObject* child : findChildren<QObject*>()) child->disconnect(this);
  mModel.setListener(nullptr);
  mPanelFrame->releasePanels();
}

void PrintDialog::connectSettings() {
  connect(mPrinterBar, &PrinterBar::printerChosen, this, &PrintDialog::choosePrinter);
  connect(mJobForm, &JobForm::copiesChosen, this, [this](int copies) { mModel.setCopies(copies); });
  connect(mJobForm, &JobForm::pagesEdited, this, &PrintDialog::editPages);
  connect(mJobForm, &JobForm::pagesFinished, this, &PrintDialog::finishPages);
  connect(mJobForm, &JobForm::paperChosen, this, &PrintDialog::choosePaper);
  connect(mNotices, &NoticeView::resolveRequested, this, [this] {
    const Result<Done> resolved = mModel.resolveConflicts();
    mNotices->setNotice(NoticeTopic::failure,
                        resolved ? QString() : asLine(resolved.error().sentence));
  });
  connect(mMoreOptions, &MoreOptionsPanel::optionChosen, this, &PrintDialog::chooseOption);
  connect(mMoreButton, &QPushButton::toggled, this, &PrintDialog::showMoreOptions);
  connect(mPrint, &QPushButton::clicked, this, &PrintDialog::print);
  connect(mCancel, &QPushButton::clicked, this, &PrintDialog::reject);
}

void PrintDialog::connectDocument() {
  StripView& strip = mStripPane->strip();
  connect(&strip, &StripView::pagesWanted, mDocument, &DocumentLoader::request);
  connect(mDocument, &DocumentLoader::pageDrawn, &strip, &StripView::showPage);
  connect(mDocument, &DocumentLoader::opened, this, [this, &strip] {
    strip.setMessage({});
    mStripPane->setPlaceholder(mDocument->isPlaceholder());
    strip.setPages(mDocument->pageSizes());
  });
  connect(mDocument, &DocumentLoader::unavailable, &strip,
          [&strip] { strip.setMessage(tr("No preview: its module is not installed")); });
  connect(mDocument, &DocumentLoader::failed, this, [this, &strip](const QString& reason) {
    strip.setMessage(tr("This document cannot be shown"));
    mNotices->setNotice(NoticeTopic::document, reason);
    refreshPrintButton();
  });
  connect(mDocument, &DocumentLoader::pageFailed, this, [this](int page, const QString& reason) {
    mNotices->setNotice(NoticeTopic::document, tr("Label %1: %2").arg(page + 1).arg(reason));
  });
  connect(mDocument, &DocumentLoader::becameIdle, this, &PrintDialog::becameSettled);
}

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

void PrintDialog::connectJob() {
  connect(mJob, &JobRunner::spooling, this, [this](quint64 sent, quint64 total) {
    mProgress->showSpooling(toQString(mModel.destination().name.printer), sent, total);
  });
  connect(mJob, &JobRunner::stateChanged, this,
          [this](const JobStatus& status) { mProgress->showState(mJob->jobId(), status); });
  connect(mJob, &JobRunner::printed, this, [this] { finish(kExitDone); });
  connect(mJob, &JobRunner::cancelled, this, [this] {
    showJobRunning(false);
    mNotices->setNotice(NoticeTopic::refusal, tr("The job was cancelled."));
  });
  connect(mJob, &JobRunner::failed, this, [this](const QString& reason) {
    showJobRunning(false);
    mNotices->setNotice(NoticeTopic::failure, reason);
  });
  connect(mProgress, &JobProgress::cancelRequested, this, [this] {
    mProgress->showCancelling();
    mJob->cancel();
  });
  connect(mProgress, &JobProgress::leaveRequested, this, [this] { finish(kExitDone); });
}

void PrintDialog::showWaiting(const QString& text) {
  mSettings->setEnabled(false);
  mMoreButton->setEnabled(false);
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

void PrintDialog::modelDidChange(ModelChange what) {
  struct Row {
    ModelChange change;
    void (PrintDialog::*show)();
  };
  static constexpr Row kRows[] = {{ModelChange::printer, &PrintDialog::showPrinter},
                                  {ModelChange::options, &PrintDialog::showOptions},
                                  {ModelChange::paper, &PrintDialog::showPaper},
                                  {ModelChange::job, &PrintDialog::showJob},
                                  {ModelChange::layout, &PrintDialog::fitToPanels}};
  for (const Row& row : kRows) {
    if (row.change == what) (this->*row.show)();
  }
}

void PrintDialog::showPrinter() {
  const Destination& destination = mModel.destination();
  if (mModel.hasQueue()) {
    mPrinterBar->setCurrent(destination);
    takeState(destination);
  } else {
    mPrinterBar->setPpdFile(toQString(destination.info));
  }
  mPresets->showPrinter();
  mPanelFrame->setPanels(mModel.panels());
  mJobForm->setPapers(mModel.papers());
  mMoreOptions->setGroups(mModel.generatedOptions());
  mMoreButton->setEnabled(!mModel.generatedOptions().empty());
  if (mModel.generatedOptions().empty()) mMoreButton->setChecked(false);
  mNotices->clear(NoticeTopic::failure);
  showPaper();
  showJob();
  setTabOrders();
  setMnemonics();
  refreshPrintButton();
}

void PrintDialog::showOptions() {
  mSummary->setLines(mModel.summary());
  mMoreOptions->setMarks(mModel.generatedOptions());
  mNotices->setNotices(NoticeTopic::conflicts, sentencesOf(mModel.conflicts()));
  mNotices->setNotices(NoticeTopic::deviations, sentencesOf(mModel.deviations()));
  mStripPane->strip().setMirrored(isMirrored(*mModel.ppdFile()));
}

void PrintDialog::showPaper() {
  const PaperSize paper = mModel.currentPaper();
  mJobForm->setCurrentPaper(toQString(paper.name));
  mStripPane->setPaperText(toQString(paper.text));
  mStripPane->strip().setPaper(paper, directionOf(*mModel.ppdFile()));
}

void PrintDialog::showJob() {
  mJobForm->setCopies(mModel.copies());
  mJobForm->setPages(toQString(mModel.pageRanges()));
  mStripPane->strip().setSelection(PageSelection(mModel.pageRanges()));
}

void PrintDialog::fitToPanels() {
  setTabOrders();
  setMnemonics();
}

void PrintDialog::loadDocument() {
  StripView& strip = mStripPane->strip();
  if (mSource.path.empty()) {
    strip.setMessage(tr("No document"));
    QTimer::singleShot(0, this, &PrintDialog::becameSettled);
    return;
  }
  strip.setMessage(tr("Opening %1...").arg(fileNameOf(mSource.path)));
  mDocument->open(mSource.opener);
}

void PrintDialog::startWatching() {
  if (!mModel.hasQueue()) return;
  mServer->listPrinters();
  mStateTimer.start();
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

void PrintDialog::choosePrinter(const QString& name) {
  const Destination* printer = mPresets->find({toUtf8(name), std::nullopt});
  if (!printer) return;
  mServer->openPrinter(*printer);
  mPrinterBar->setWaiting(tr("Opening %1...").arg(name));
  mNotices->clear(NoticeTopic::printer);
  refreshPrintButton();
}

void PrintDialog::openingFailed(const QString& reason) {
  mPrinterBar->setCurrent(mModel.destination());
  mNotices->setNotice(NoticeTopic::failure, reason);
  refreshPrintButton();
}

void PrintDialog::choosePaper(const QString& name) { mModel.setPaper(toUtf8(name)); }

void PrintDialog::chooseOption(const QString& keyword, const QString& choice) {
  const Result<Done> chosen = mModel.setOption(toUtf8(keyword), toUtf8(choice));
  mNotices->setNotice(NoticeTopic::failure, chosen ? QString() : asLine(chosen.error().sentence));
}

// A half-typed range is no mistake yet.
void PrintDialog::editPages(const QString& text) {
  if (mModel.setPageRanges(toUtf8(text))) mJobForm->setPagesProblem({});
}

void PrintDialog::finishPages(const QString& text) {
  const Result<Done> set = mModel.setPageRanges(toUtf8(text));
  mJobForm->setPagesProblem(set ? QString() : asLine(set.error().sentence));
}

void PrintDialog::showMoreOptions(bool shown) {
  mMoreOptions->setVisible(shown);
  setMnemonics();
}

// The panels first: their options are what the dialog is opened for.
void PrintDialog::setMnemonics() {
  const QString reserved = mnemonicIn(NoticeView::resolveTitle());
  for (QWidget* root : {static_cast<QWidget*>(mPanelFrame), static_cast<QWidget*>(mMoreOptions)}) {
    assignMnemonics(*this, *root, reserved);
  }
}

QString PrintDialog::refusal() const {
  if (!mModel.isOpen()) return tr("No printer is open.");
  if (!mModel.hasQueue()) return tr("This is a PPD file, no printer: printing is switched off.");
  if (mSource.path.empty())
    return tr("There is no document to print: start with \"cutline FILE\".");
  if (mDocument->hasFailed()) return tr("This document cannot be printed.");
  return {};
}

void PrintDialog::refreshPrintButton() {
  const QString reason = refusal();
  mPrint->setEnabled(reason.isEmpty() && !mServer->isOpening());
  mPrint->setToolTip(reason);
  tellAccessibleDescription(*mPrint, reason);
  mNotices->setNotice(NoticeTopic::refusal, reason);
}

void PrintDialog::print() {
  finishPages(mJobForm->pages());
  if (mJobForm->hasPagesProblem()) return mJobForm->focusPages();
  if (!refusal().isEmpty() || mServer->isOpening() || mJob->isRunning()) return;
  const Result<OptionList> options = mModel.prepareToPrint();
  mNotices->setNotice(NoticeTopic::failure, options ? QString() : asLine(options.error().sentence));
  if (!options) return;
  mNotices->clear(NoticeTopic::refusal);
  showJobRunning(true);
  const DestinationName& name = mModel.destination().name;
  mProgress->showSpooling(toQString(name.printer), 0, 0);
  mJob->start({name, mSource.path, mSource.title, *options});
}

void PrintDialog::showJobRunning(bool isRunning) {
  mSettings->setEnabled(!isRunning);
  mMoreOptions->setEnabled(!isRunning);
  mBottom->setCurrentIndex(isRunning ? 1 : 0);
  if (isRunning) {
    mStripPane->strip().setFocus();
  } else {
    mPrint->setFocus();
  }
}

// A job that the server has goes on without the dialog; one that is being sent is given up first.
void PrintDialog::reject() {
  if (!mJob->isRunning()) return QDialog::reject();
  if (mJob->isSubmitted()) return finish(kExitDone);
  mProgress->showCancelling();
  mJob->cancel();
}

void PrintDialog::finish(int exitStatus) {
  mExitStatus = exitStatus;
  done(exitStatus);
}

}  // namespace cutline
