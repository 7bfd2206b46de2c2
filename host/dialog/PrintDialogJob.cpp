// The part of PrintDialog that has to do with the document: shows it, says whether it can be
// printed, sends it.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "host/core/CommandLine.h"
#include "host/core/JobPlan.h"
#include "host/dialog/ClickGuard.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/DocumentWatch.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

QString fileNameOf(const std::string& path) {
  return toQString(path.substr(path.find_last_of('/') + 1));
}

std::vector<std::string> filesIn(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& url : data.urls()) {
    if (!url.isLocalFile()) return {};
    paths.push_back(toUtf8(url.toLocalFile()));
  }
  return paths;
}

}  // namespace

QString titleOf(const std::vector<std::string>& paths) {
  if (paths.empty()) return {};
  const QString first = fileNameOf(paths.front());
  if (paths.size() == 1) return first;
  return PrintDialog::tr("%1 and %2 more").arg(first).arg(paths.size() - 1);
}

void PrintDialog::connectDocument() {
  connect(mOpen, &OpenBar::documentsChosen, this, &PrintDialog::openDocuments);
  StripView& strip = mStripPane->strip();
  connect(&strip, &StripView::pagesWanted, mDocument, &DocumentLoader::request);
  connect(mDocument, &DocumentLoader::pageDrawn, &strip, &StripView::showPage);
  connect(mDocument, &DocumentLoader::pageDrawn, this, &PrintDialog::labelShown);
  connect(mDocument, &DocumentLoader::composed, this, &PrintDialog::takeComposition);
  connect(mDocument, &DocumentLoader::waiting, &strip, &StripView::setDimmed);
  connect(mDocument, &DocumentLoader::failed, this, &PrintDialog::failComposition);
  connect(mDocument, &DocumentLoader::inksKnown, this, &PrintDialog::showEdgeNotice);
  connect(mDocument, &DocumentLoader::pageFailed, this, [this](int page, const QString& reason) {
    mNotices->setNotice(NoticeTopic::document, tr("Label %1: %2").arg(page + 1).arg(reason));
  });
  connect(mWatch, &DocumentWatch::changed, this, &PrintDialog::reloadDocument);
  connect(mDocument, &DocumentLoader::becameIdle, this, &PrintDialog::becameSettled);
}

void PrintDialog::loadDocument() {
  const auto settle = [this] {
    completeForms();
    emit becameSettled();
  };
  StripView& strip = mStripPane->strip();
  if (mSource.paths.empty()) {
    strip.setMessage(mIsChoosing ? tr("The labels are shown when you continue")
                                 : tr("Open or drop a document"));
    QTimer::singleShot(0, this, settle);
    return;
  }
  if (mSource.isRaw) {
    strip.setMessage(tr("This document goes to the printer as it is, unseen"));
    QTimer::singleShot(0, this, settle);
    return;
  }
  strip.setMessage(tr("Opening %1...").arg(toQString(mSource.title)));
  mWatch->watch(mSource.paths);
  mDocument->setDocuments(mSource.paths, mSource.tools);
  recompose();
}

// What is on its way to the printer has been read already.
void PrintDialog::reloadDocument() {
  if (mSource.paths.empty() || mSource.isRaw) return;
  forgetOutcome();
  mDocument->setDocuments(mSource.paths, mSource.tools);
  recompose();
}

void PrintDialog::openDocuments(const std::vector<std::string>& paths) {
  mSource.title = toUtf8(titleOf(paths));
  mSource.paths = paths;
  showTitle();
  for (const NoticeTopic topic : {NoticeTopic::document, NoticeTopic::edges, NoticeTopic::paper}) {
    mNotices->clear(topic);
  }
  forgetOutcome();
  loadDocument();
  showStrip();
  refreshPrintButton();
}

void PrintDialog::setRecentDocuments(const std::vector<std::string>& paths) {
  mOpen->setRecent(paths);
}

void PrintDialog::showTitle() {
  setWindowTitle(mSource.title.empty() ? tr("Print")
                                       : tr("Print %1").arg(toQString(mSource.title)));
}

void PrintDialog::dragEnterEvent(QDragEnterEvent* event) {
  const bool isFree = mModel.isOpen() && !isPrinting();
  if (isFree && !filesIn(*event->mimeData()).empty()) event->acceptProposedAction();
}

void PrintDialog::dropEvent(QDropEvent* event) {
  const std::vector<std::string> paths = filesIn(*event->mimeData());
  if (paths.empty()) return;
  event->acceptProposedAction();
  openDocuments(paths);
}

void PrintDialog::connectJob() {
  connect(mJob, &JobRunner::composed, this,
          [this](int documentPages) { setJobLabels(planFor(mModel, documentPages).labels()); });
  connect(mJob, &JobRunner::spooling, this, [this](quint64 sent, quint64 total) {
    mProgress->showSpooling(toQString(mModel.destination().name.printer), sent, total);
  });
  connect(mJob, &JobRunner::stateChanged, this,
          [this](const JobStatus& status) { mProgress->showState(mJob->jobId(), status); });
  connect(mJob, &JobRunner::serverSilent, this,
          [this] { mProgress->showSilence(mJob->jobId(), mJob->isGivenUp()); });
  connect(mJob, &JobRunner::printed, this, &PrintDialog::takePrinted);
  connect(mJob, &JobRunner::cancelled, this, &PrintDialog::takeCancelled);
  connect(mJob, &JobRunner::leftInDoubt, this, [this] {
    noteFailure();
    showJobRunning(false);
    mNotices->setNotice(NoticeTopic::refusal,
                        tr("The print server does not answer, and may have the job that you "
                           "cancelled. Look at its jobs before you print again."));
  });
  connect(mJob, &JobRunner::doubtEnded, this, [this](const QString& outcome) {
    if (!isPrinting()) mNotices->setNotice(NoticeTopic::refusal, outcome);
  });
  connect(mJob, &JobRunner::cancelRefused, this, [this](const QString& reason) {
    mProgress->endCancelling();
    mNotices->setNotice(NoticeTopic::failure, reason);
  });
  connect(mJob, &JobRunner::failed, this, [this](const QString& reason) {
    showJobRunning(false);
    mNotices->setNotice(NoticeTopic::failure, reason);
  });
  connect(mProgress, &JobProgress::cancelRequested, this, [this] {
    if (stopWaiting()) return;
    mProgress->showCancelling();
    mJob->cancel();
  });
  connect(mProgress, &JobProgress::leaveRequested, this, &PrintDialog::leaveJob);
}

QString PrintDialog::refusal() const {
  if (!mModel.isOpen()) return tr("No printer is open.");
  if (!mModel.hasQueue()) return tr("This is a PPD file, no printer: printing is switched off.");
  if (mIsChoosing) return {};
  if (mSource.paths.empty()) return tr("There is no document to print: open one, or drop it here.");
  if (mDocument->hasFailed()) return tr("This document cannot be printed.");
  return {};
}

void PrintDialog::refreshPrintButton() {
  const QString reason = refusal();
  mPrint->setEnabled(reason.isEmpty() && !mServer->isOpening());
  mPrint->setToolTip(reason);
  tellAccessibleDescription(*mPrint, reason);
  mNotices->setNotice(NoticeTopic::refusal, reason);
  showPrintTitle();
}

// 0 where it is not known: nothing is composed, or not all of it, or the document is sent unseen.
std::uint64_t PrintDialog::labelsToPrint() const {
  if (!mModel.isOpen() || mSource.isRaw || !mDocument->isOpen() || mDocument->hasFailed()) return 0;
  const CompositionReport& report = mDocument->report();
  return report.isPartial ? 0 : planFor(mModel, report.documentPages).labels();
}

void PrintDialog::showPrintTitle() {
  if (mIsChoosing) return mPrint->setText(tr("Cont&inue"));
  const std::uint64_t labels = labelsToPrint();
  const QString counted = labels == 1 ? tr("Pr&int 1 label") : tr("Pr&int %1 labels").arg(labels);
  const QString fresh = labels == 0 ? tr("Pr&int") : counted;
  mPrint->setText(mOutcome->isShown() ? tr("Pr&int again") : fresh);
}

// What is printed next is not what was printed.
void PrintDialog::forgetOutcome() {
  mOutcome->clear();
  showPrintTitle();
}

void PrintDialog::print() {
  finishPages(mJobForm->pages());
  if (mJobForm->hasPagesProblem()) return mJobForm->focusPages();
  if (!refusal().isEmpty() || mServer->isOpening() || isPrinting()) return;
  if (mIsChoosing) return endChoosing();
  if (!mSource.isRaw && mDocument->isComposing()) return printWhenComposed();
  if (!agreesToMuch()) return;
  const Result<OptionList> options = mModel.prepareToPrint();
  mNotices->setNotice(NoticeTopic::failure, options ? QString() : asLine(options.error().sentence));
  if (!options) return;
  for (const NoticeTopic topic : {NoticeTopic::refusal, NoticeTopic::setUp}) mNotices->clear(topic);
  setJobLabels(0);
  forgetOutcome();
  showJobRunning(true);
  const DestinationName& name = mModel.destination().name;
  mProgress->showComposing();
  const std::string document = toUtf8(fileNameOf(mSource.paths.front()));
  mJob->start({name, mSource.paths.front(), mSource.title, *options, document, mSetUpSince},
              jobComposing());
}

void PrintDialog::setJobLabels(std::uint64_t labels) {
  mJobLabels = labels;
  mProgress->setLabels(labels);
}

// How much it is, and whether it has the pages, is known only then.
void PrintDialog::printWhenComposed() {
  mIsPrintWaiting = true;
  mProgress->showComposing();
  showJobRunning(true);
}

// False where nothing waited.
bool PrintDialog::stopWaiting() {
  if (!std::exchange(mIsPrintWaiting, false)) return false;
  showJobRunning(false);
  return true;
}

bool PrintDialog::isPrinting() const { return mIsPrintWaiting || mJob->isRunning(); }

// Nothing for a document that is sent as it is.
JobRunner::Composing PrintDialog::jobComposing() const {
  if (mSource.isRaw) return {};
  CompositionRequest request = mModel.compositionRequest();
  request.pages = mModel.pageSelection();
  return [request, compose = mSource.tools.compose, paths = mSource.paths](std::stop_token stop) {
    return compose(paths, request, std::move(stop));
  };
}

void PrintDialog::showJobRunning(bool isRunning) {
  mSettings->setEnabled(!isRunning);
  mNotices->setEnabled(!isRunning);
  mBottom->setCurrentIndex(isRunning ? 1 : 0);
  mGuard->noteExchange();
  if (isRunning) {
    mStripPane->strip().setFocus();
  } else {
    mPrint->setFocus();
  }
}

void PrintDialog::notePrinted() {
  mExitStatus = kExitDone;
  mCancel->setText(tr("Close"));
  emit jobWentOut();
}

void PrintDialog::takePrinted() {
  if (mClosesAfterJob) return leaveJob();
  notePrinted();
  mOutcome->showPrinted(mJobLabels);
  showPrintTitle();
  showJobRunning(false);
}

// Labels that came out before are printed.
void PrintDialog::takeCancelled(int pages) {
  if (pages > 0) notePrinted();
  showJobRunning(false);
  mNotices->setNotice(NoticeTopic::refusal,
                      pages > 0 ? tr("The job was cancelled; some of its labels are printed.")
                                : tr("The job was cancelled."));
}

// A job that the server has goes on without the dialog; one that is being sent is given up first.
void PrintDialog::reject() {
  if (stopWaiting()) return;
  if (!mJob->isRunning()) return QDialog::reject();
  if (mJob->isSubmitted()) return leaveJob();
  mProgress->showCancelling();
  mJob->cancel();
}

void PrintDialog::leaveJob() {
  notePrinted();
  done(mExitStatus);
}

}  // namespace cutline
