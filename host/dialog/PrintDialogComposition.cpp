// The part of PrintDialog that has to do with how documents lie on labels: shows the settings of
// it, takes the user's, and says what could be better.
#include <algorithm>
#include <cmath>
#include <utility>

#include "composition/EdgeLoss.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/HistoryBar.h"
#include "host/dialog/LabelNotices.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr char kCustomPrefix[] = "Custom.";
constexpr double kSameWidth = 1;  // points: tapes this close are of one width

bool isCustom(const std::string& paper) { return paper.starts_with(kCustomPrefix); }

PrinterLook lookOf(const PpdFile& ppd) { return {ppd.attribute("ColorDevice") == "False"}; }

LengthRule ruleOf(const PrintModel& model) {
  if (model.jobLayout().followsContent) return LengthRule::content;
  return isCustom(model.currentPaper().name) ? LengthRule::fixed : LengthRule::paper;
}

}  // namespace

void PrintDialog::connectLayoutForm() {
  connect(mLayoutForm, &LayoutForm::layoutChosen, this,
          [this](const JobLayout& layout) { mModel.setJobLayout(layout); });
  connect(mLayoutForm, &LayoutForm::lengthChosen, this, &PrintDialog::chooseLength);
  connect(mLayoutForm, &LayoutForm::wordsChanged, this,
          [this] { mLayoutBar->setWords(mLayoutForm->words()); });
  connect(mLayoutBar, &LayoutBar::formWanted, this, [this](bool isWanted) {
    mLayoutForm->setVisible(isWanted);
    setMnemonics();
  });
  mLayoutBar->setWords(mLayoutForm->words());
}

void PrintDialog::showLayout() {
  if (mLayoutForm == nullptr) return;
  const LabelPage label = mModel.label();
  mLayoutForm->setLayout(mModel.jobLayout(), label);
  mLayoutForm->setLengths(mModel.customLengths(), ruleOf(mModel), label.length);
}

// A named paper of the present width: the one that was chosen last, where it is one.
std::string PrintDialog::namedPaper() const {
  const PaperSize current = mModel.currentPaper();
  std::string found;
  for (const PaperSize& paper : mModel.papers()) {
    if (std::abs(paper.width - current.width) > kSameWidth) continue;
    if (found.empty() || paper.name == mNamedPaper) found = paper.name;
  }
  return found.empty() ? mNamedPaper : found;
}

void PrintDialog::chooseLength(LengthRule rule, double points) {
  JobLayout layout = mModel.jobLayout();
  layout.followsContent = rule == LengthRule::content;
  mModel.setJobLayout(layout);
  Result<Done> chosen = Done{};
  if (rule == LengthRule::fixed) chosen = mModel.setCustomLength(points);
  if (rule == LengthRule::paper) chosen = mModel.setPaper(namedPaper());
  mNotices->setNotice(NoticeTopic::failure, chosen ? QString() : asLine(chosen.error().sentence));
}

// Asked for the same again the loader does nothing, so this follows every change.
void PrintDialog::recompose() {
  if (!mModel.isOpen()) return;
  mDocument->setLook(lookOf(*mModel.ppdFile()));
  mDocument->compose(mModel.compositionRequest());
}

void PrintDialog::takeComposition() {
  completeForms();
  const CompositionReport report = mDocument->report();
  mStripPane->strip().setMessage({});
  showStrip();
  mStripPane->strip().setPicturesOld();
  mNotices->clear(NoticeTopic::document);
  mLayoutForm->setHasText(mDocument->hasText());
  showPagesProblem(checkPages());
  refreshPrintButton();
  if (!mDocument->isComplete()) return;
  showPaperNotices();
  if (mModel.jobLayout().followsContent)
    mHistory->leaveOut([&] { mModel.takeContentLength(report.label.length); });
  if (!mDocument->isComposing() && stopWaiting()) print();
}

void PrintDialog::failComposition(const QString& reason) {
  completeForms();
  showStrip();
  mStripPane->strip().setMessage(tr("This document cannot be shown"));
  mNotices->setNotice(NoticeTopic::document, reason);
  mNotices->clear(NoticeTopic::edges);
  mNotices->clear(NoticeTopic::paper);
  refreshPrintButton();
  stopWaiting();
}

void PrintDialog::showPaperNotices() {
  const CompositionReport& report = mDocument->report();
  std::vector<Notice> notices;
  if (const auto sheet = shrunkSheet(report)) {
    notices.push_back({tr("The document has %1 pages; they are shrunk to %2 %")
                           .arg(toQString(sheet->name))
                           .arg(sheet->percent)});
  }
  const bool isFree = mModel.jobLayout().followsContent;
  const PaperSize* better =
      isFree ? nullptr : betterPaper(report, mModel.papers(), mModel.currentPaper());
  if (better != nullptr) {
    notices.push_back({tr("Fits better: %1").arg(toQString(better->text)),
                       {{tr("Use it"), tr("Choose this paper"),
                         [this, name = toQString(better->name)] { choosePaper(name); }}}});
  }
  mNotices->setNotices(NoticeTopic::paper, std::move(notices));
}

void PrintDialog::showEdgeNotice() {
  const auto loss = edgeLoss(mDocument->report(), mModel.jobLayout().placing, mDocument->inks());
  if (!loss) return mNotices->clear(NoticeTopic::edges);
  const int count = static_cast<int>(loss->labels.size());
  const QString line =
      count == 1
          ? tr("Edges will be cut off on label %1: shrink to %2 %")
                .arg(loss->labels.front() + 1)
                .arg(loss->percent)
          : tr("Edges will be cut off on %1 labels: shrink to %2 %").arg(count).arg(loss->percent);
  mNotices->setNotices(NoticeTopic::edges,
                       {{line,
                         {{tr("Shrink"), tr("Make the documents small enough"),
                           [this, percent = loss->percent] { shrinkTo(percent); }}}}});
}

void PrintDialog::shrinkTo(int percent) {
  JobLayout layout = mModel.jobLayout();
  layout.placing.scaling = Scaling::percent;
  layout.placing.percent = percent;
  mModel.setJobLayout(layout);
}

}  // namespace cutline
