#include "host/dialog/PrintDialog.h"

#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <algorithm>
#include <utility>

#include "host/core/CutRules.h"
#include "host/dialog/ChoiceHints.h"
#include "host/dialog/ClickGuard.h"
#include "host/dialog/CuttingForm.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/Disclosure.h"
#include "host/dialog/DocumentWatch.h"
#include "host/dialog/HistoryBar.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/JobRunner.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PresetKeeper.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "host/dialog/WheelGuard.h"
#include "host/dialog/mnemonics.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

QStringList sentencesOf(const std::vector<Deviation>& deviations) {
  QStringList lines;
  for (const Deviation& deviation : deviations) lines.append(translated(deviation.sentence));
  return lines;
}

// More of them push the settings out of the window, and nobody reads them all.
constexpr std::size_t kMostConflicts = 5;

// The last of the conflicts has the button that sorts them all out.
std::vector<Notice> conflictNotices(const std::vector<Sentence>& conflicts,
                                    const std::function<void()>& resolve) {
  std::vector<Notice> notices;
  const std::size_t shown = std::min(conflicts.size(), kMostConflicts);
  for (std::size_t at = 0; at < shown; ++at) notices.push_back({translated(conflicts[at])});
  if (notices.empty()) return notices;
  const std::size_t others = conflicts.size() - shown;
  if (others > 0) notices.push_back({NoticeView::othersLine(others)});
  notices.back().remedies = {{NoticeView::resolveTitle(), NoticeView::resolveHint(), resolve}};
  return notices;
}

}  // namespace

PrintDialog::PrintDialog(PrintModel& model, std::shared_ptr<PrintServer> server, PrintSource source)
    : mModel(model),
      mSource(std::move(source)),
      mExitStatus(kExitCancelled),
      mServer(new ServerClient(server, this)),
      mDocument(new DocumentLoader(this)),
      mWatch(new DocumentWatch(this)),
      mJob(new JobRunner(server, this)),
      mSettings(new QWidget(this)),
      mPrinterBar(new PrinterBar(mSettings)),
      mPresetBar(new PresetBar(mSettings)),
      mJobForm(new JobForm(mSettings)),
      mLayoutBar(new LayoutBar(mSettings)),
      mPanelFrame(new PanelFrame(mSettings)),
      mCuttingForm(new CuttingForm(mSettings)),
      mSummaryButton(makeDisclosure(tr("Summary"), mSettings)),
      mSummary(new SummaryView(mSettings)),
      mNotices(new NoticeView(this)),
      mPresets(new PresetKeeper(model, *mServer, *mPresetBar, *mNotices, this)),
      mStripPane(new StripPane(this)),
      mMoreOptions(new MoreOptionsPanel(
          [this](const std::string& keyword) { return mModel.markedChoice(keyword); }, mSettings)),
      mMoreButton(makeDisclosure(tr("&More printer options"), mSettings)),
      mOpen(new OpenBar(this)),
      mHistory(new HistoryBar(model, this)),
      mHints(new ChoiceHints(
          model, [this] { return presentPlan(); }, this)),
      mPrint(new QPushButton(tr("Pr&int"), this)),
      mCancel(new QPushButton(tr("Cancel"), this)),
      mBottom(new QStackedWidget(this)),
      mProgress(new JobProgress(this)),
      mOutcome(new JobOutcome(this)),
      mGuard(new ClickGuard(mBottom)) {
  new WheelGuard(this);
  setAcceptDrops(true);
  showTitle();
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
  connect(mJobForm, &JobForm::collationChosen, this,
          [this](bool isCollated) { mModel.setCollated(isCollated); });
  connect(mJobForm, &JobForm::reversalChosen, this, &PrintDialog::reverse);
  connect(mJobForm, &JobForm::paperChosen, this, &PrintDialog::choosePaper);
  connect(&mStripPane->strip(), &StripView::onlyThisWanted, this, &PrintDialog::printOnly);
  connect(mNotices, &NoticeView::rebuilt, this, &PrintDialog::setMnemonics);
  connect(mCuttingForm, &CuttingForm::cuttingChosen, this,
          [this](const CutOffer& offer) { mModel.chooseCut(offer); });
  connect(mMoreOptions, &MoreOptionsPanel::optionChosen, this, &PrintDialog::chooseOption);
  connect(mMoreButton, &QPushButton::toggled, this, &PrintDialog::showMoreOptions);
  connect(mSummaryButton, &QPushButton::toggled, mSummary, &QWidget::setVisible);
  connect(mPrint, &QPushButton::clicked, this, &PrintDialog::print);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
          &PrintDialog::showHelp);
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
                                  {ModelChange::composition, &PrintDialog::showLayout},
                                  {ModelChange::composition, &PrintDialog::showJob},
                                  {ModelChange::layout, &PrintDialog::fitToPanels}};
  for (const Row& row : kRows) {
    if (row.change == what) (this->*row.show)();
  }
  showStrip();
  forgetOutcome();
  mPresets->modelDidChange();
  mHistory->modelDidChange();
  recompose();
}

void PrintDialog::showPrinter() {
  const Destination& destination = mModel.destination();
  mSetUpSince = destination.setUpSince;
  if (mModel.hasQueue()) {
    mPrinterBar->setCurrent(destination);
    takeState(destination);
  } else {
    mPrinterBar->setPpdFile(toQString(destination.info));
  }
  mPresets->showPrinter();
  mHistory->start();
  mPanelFrame->setPanels(mModel.panels());
  mHints->watchPanels();
  mJobForm->setPapers(mModel.papers());
  const bool hasMoreOptions = mModel.hasGeneratedOptions();
  mMoreButton->setEnabled(hasMoreOptions);
  if (!hasMoreOptions) mMoreButton->setChecked(false);
  mMoreOptions->setGroups(
      [this] { return mModel.isOpen() ? mModel.generatedOptions() : std::vector<OptionGroup>(); });
  mOpen->setEnabled(true);
  for (const NoticeTopic topic : {NoticeTopic::failure, NoticeTopic::setUp}) mNotices->clear(topic);
  showPaper();
  showJob();
  setTabOrders();
  setMnemonics();
  refreshPrintButton();
}

void PrintDialog::showOptions() {
  mSummary->setLines(mModel.summary());
  showCuttingForm();
  mMoreOptions->showMarks();
  mNotices->setNotices(NoticeTopic::conflicts,
                       conflictNotices(mModel.conflicts(), [this] { resolveConflicts(); }));
  mNotices->setNotices(NoticeTopic::deviations, sentencesOf(mModel.deviations()));
}

// Where a driver has words of cutting and no panel speaks for it.
void PrintDialog::showCuttingForm() {
  const CutMeanings meanings = mModel.cutMeanings();
  mCuttingForm->setMeanings(meanings);
  mCuttingForm->setVisible(!meanings.offers.empty());
  mSummaryButton->setVisible(!mModel.summary().empty());
}

void PrintDialog::showPaper() {
  const PaperSize paper = mModel.currentPaper();
  const auto isIt = [&](const PaperSize& each) { return each.name == paper.name; };
  if (std::ranges::any_of(mModel.papers(), isIt)) mNamedPaper = paper.name;
  mJobForm->setCurrentPaper(toQString(paper.name), toQString(paper.text));
  showLayout();
}

void PrintDialog::showJob() {
  mJobForm->setCopies(mModel.copies());
  mJobForm->setPages(toQString(mModel.pageRanges()));
  mJobForm->setOrder(mModel.isCollated(), mModel.jobLayout().isReversed);
}

void PrintDialog::fitToPanels() {
  setTabOrders();
  setMnemonics();
}

void PrintDialog::resolveConflicts() {
  const Result<Done> resolved = mModel.resolveConflicts();
  mNotices->setNotice(NoticeTopic::failure,
                      resolved ? QString() : asLine(resolved.error().sentence));
}

// A paper's own length is meant with it.
void PrintDialog::choosePaper(const QString& name) {
  JobLayout layout = mModel.jobLayout();
  if (std::exchange(layout.followsContent, false)) mModel.setJobLayout(layout);
  mModel.setPaper(toUtf8(name));
}

void PrintDialog::chooseOption(const QString& keyword, const QString& choice) {
  const Result<Done> chosen = mModel.setOption(toUtf8(keyword), toUtf8(choice));
  mNotices->setNotice(NoticeTopic::failure, chosen ? QString() : asLine(chosen.error().sentence));
}

void PrintDialog::reverse(bool isReversed) {
  JobLayout layout = mModel.jobLayout();
  layout.isReversed = isReversed;
  mModel.setJobLayout(layout);
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

// Against the documents, once they are composed.
Result<Done> PrintDialog::checkPages() const {
  const Result<PageRanges> ranges = PageRanges::parse(mModel.pageRanges());
  if (!ranges) return ranges.error();
  const CompositionReport& report = mDocument->report();
  if (!mDocument->isOpen() || report.isPartial) return Done{};
  return ranges->checkWithin(report.documentPages);
}

void PrintDialog::showMoreOptions(bool shown) {
  mMoreOptions->setVisible(shown);
  setTabOrders();
  setMnemonics();
}

// The panels first: their options are what the dialog is opened for.
void PrintDialog::setMnemonics() {
  const QString reserved = mnemonicIn(NoticeView::resolveTitle());
  for (QWidget* root : std::initializer_list<QWidget*>{
           mPanelFrame, mLayoutBar, mLayoutForm, mNotices, mMoreOptions, mSettings, mHistory}) {
    if (root != nullptr) assignMnemonics(*this, *root, reserved);
  }
}

}  // namespace cutline
