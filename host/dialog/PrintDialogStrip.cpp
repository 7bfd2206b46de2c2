// The part of PrintDialog that shows the job as it leaves the printer.
#include <algorithm>
#include <string>

#include "host/core/JobPlan.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/StripPane.h"
#include "qt/QtText.h"
#include "strip/PlanWords.h"

namespace cutline {

// Until all pages are composed there are as many as before: the first alone is known of a job that
// goes on.
void PrintDialog::showStrip() {
  if (!mModel.isOpen()) return;
  const CompositionReport& report = mDocument->report();
  const bool hasDocument = mDocument->isOpen();
  const int before = hasDocument && report.isPartial ? mShownPages : 0;
  mShownPages = std::max(report.documentPages, before);
  const CutPlan plan = planFor(mModel, hasDocument ? std::optional(mShownPages) : std::nullopt);
  mStripPane->setJob({hasDocument ? report.label : mModel.label(), plan, hasDocument},
                     asLine(planSentence(plan)), toQString(mModel.currentPaper().text));
}

void PrintDialog::printOnly(unsigned page) { finishPages(QString::number(page)); }

}  // namespace cutline
