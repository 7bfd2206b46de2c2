// The part of PrintDialog that has to do with the document: shows it, says whether it can be
// printed, sends it.
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

#include "host/core/CommandLine.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

QString fileNameOf(const std::string& path) {
  return toQString(path.substr(path.find_last_of('/') + 1));
}

}  // namespace

void PrintDialog::connectDocument() {
  StripView& strip = mStripPane->strip();
  connect(&strip, &StripView::pagesWanted, mDocument, &DocumentLoader::request);
  connect(mDocument, &DocumentLoader::pageDrawn, &strip, &StripView::showPage);
  connect(mDocument, &DocumentLoader::opened, this, [this, &strip] {
    strip.setMessage({});
    mStripPane->setPlaceholder(mDocument->isPlaceholder());
    strip.setPages(mDocument->pageSizes());
    showPagesProblem(checkPages());
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
