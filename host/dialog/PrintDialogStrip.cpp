// The part of PrintDialog that shows the job as it leaves the printer.
#include <QMessageBox>
#include <QPushButton>
#include <QWhatsThis>
#include <algorithm>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "host/core/JobPlan.h"
#include "host/core/OptionTable.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PlanNotices.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"
#include "strip/PlanWords.h"

namespace cutline {
namespace {

const QString kCountKeyword = QStringLiteral("LxCutLabel");

std::vector<unsigned> countsOf(const OptionTable& options) {
  std::vector<unsigned> counts;
  const PpdOption* option = options.find(toUtf8(kCountKeyword));
  if (option == nullptr) return counts;
  for (const OptionChoice& choice : option->choices)
    counts.push_back(numberIn<unsigned>(choice.name).value_or(0));
  return counts;
}

}  // namespace

// Until all pages are composed there are as many as before: the first alone is known of a job that
// goes on.
void PrintDialog::showStrip() {
  if (!mModel.isOpen()) return;
  const CompositionReport& report = mDocument->report();
  const bool hasDocument = mDocument->isOpen();
  const int before = hasDocument && report.isPartial ? mShownPages : 0;
  mShownPages = std::max(report.documentPages, before);
  const CutPlan plan = presentPlan();
  mStripPane->setJob({hasDocument ? report.label : mModel.label(), plan, hasDocument},
                     asLine(planSentence(plan)), toQString(mModel.currentPaper().text));
  if (!mSource.isRaw) showCuttingNotices(hasDocument && !report.isPartial ? &plan : nullptr);
}

CutPlan PrintDialog::presentPlan() const {
  return planFor(mModel, mDocument->isOpen() ? std::optional(mShownPages) : std::nullopt);
}

// What has help of its own takes the key before.
void PrintDialog::showHelp() {
  QWhatsThis::showText(mapToGlobal(QPoint(width() / 4, height() / 4)),
                       tr("The strip shows the whole job as it leaves the printer, with what the "
                          "knife does to it; the line below says it in words.\n\n"
                          "Point at a cut option, or press F1 on it, to read what it does and what "
                          "it would change.\n\n"
                          "Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z "
                          "undoes a setting."),
                       this);
}

// None where it is not known yet what is printed.
void PrintDialog::showCuttingNotices(const CutPlan* plan) {
  const std::vector<unsigned> counts = countsOf(mModel.options());
  const auto odd = plan != nullptr ? oddPiece(*plan, counts, kMostCopies) : std::nullopt;
  if (!odd) return mNotices->clear(NoticeTopic::cutting);
  Notice notice{tr("The last piece has %1 of %2 labels.").arg(odd->last).arg(odd->each)};
  if (odd->betterCount) {
    const QString count = QString::number(*odd->betterCount);
    notice.remedies.push_back({tr("Cut every %1").arg(count), tr("All pieces are alike then"),
                               [this, count] { chooseOption(kCountKeyword, count); }});
  }
  if (odd->betterCopies) {
    const int copies = static_cast<int>(*odd->betterCopies);
    notice.remedies.push_back({tr("Print %1 copies").arg(copies), tr("All pieces are alike then"),
                               [this, copies] { mModel.setCopies(copies); }});
  }
  mNotices->setNotices(NoticeTopic::cutting, {std::move(notice)});
}

bool PrintDialog::agreesToMuch() {
  if (mSource.isRaw) return true;
  const CutPlan plan = planFor(mModel, mDocument->report().documentPages);
  if (!isMuch(plan) || plan.labels() <= mAgreedLabels) return true;
  auto* question = new QMessageBox(QMessageBox::Question, tr("Print"), tr("Print all of this?"),
                                   QMessageBox::Cancel, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setInformativeText(asLine(planSentence(plan)));
  question->button(QMessageBox::Cancel)->setText(tr("Cancel"));
  QPushButton* const agree =
      question->addButton(tr("&Print %1 labels").arg(plan.labels()), QMessageBox::AcceptRole);
  question->setDefaultButton(agree);
  connect(agree, &QPushButton::clicked, this, [this, labels = plan.labels()] {
    mAgreedLabels = labels;
    print();
  });
  question->open();
  return false;
}

void PrintDialog::printOnly(unsigned page) { finishPages(QString::number(page)); }

}  // namespace cutline
