#include "host/dialog/PrintDialog.h"

#include <QPushButton>
#include <QStackedWidget>
#include <utility>

#include "host/core/CommandLine.h"
#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/JobRunner.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PresetKeeper.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "host/dialog/mnemonics.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

bool isMirrored(const PpdFile& ppd) {
  const std::string keyword = "LxMirror";
  return OptionTable(ppd).position(keyword, ppd.markedChoice(keyword)) == 1;
}

StripDirection directionOf(const PpdFile& ppd) {
  return hasCutOptions(ppd) && !isLabelRoll(ppd) ? StripDirection::across : StripDirection::down;
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

// The widgets outlive this part of the dialog by a moment, and in Qt 6.4.2 one that loses the focus
// then still reports what was typed into it, to a dialog that is half gone.
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
  // Ranges that were saved may be none; they are named when the user prints.
  const Result<PageRanges> ranges = PageRanges::parse(mModel.pageRanges());
  mStripPane->strip().setSelection(ranges ? *ranges : PageRanges());
}

void PrintDialog::fitToPanels() {
  setTabOrders();
  setMnemonics();
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
  showPagesProblem(set ? checkPages() : set);
}

void PrintDialog::showPagesProblem(const Result<Done>& checked) {
  mJobForm->setPagesProblem(checked ? QString() : asLine(checked.error().sentence));
}

// Against a document whose pages can be counted here.
Result<Done> PrintDialog::checkPages() const {
  const Result<PageRanges> ranges = PageRanges::parse(mModel.pageRanges());
  if (!ranges) return ranges.error();
  if (!mDocument->isOpen() || mDocument->isPlaceholder()) return Done{};
  return ranges->checkWithin(static_cast<int>(mDocument->pageSizes().size()));
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

}  // namespace cutline
