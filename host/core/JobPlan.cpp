#include "host/core/JobPlan.h"

#include <vector>

#include "composition/PickedPages.h"
#include "cups/PpdFacts.h"
#include "host/core/CutSettingsReader.h"
#include "host/core/PrintModel.h"

namespace cutline {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;

// Counted from 1.
std::vector<unsigned> pagesOf(const PrintModel& model, int documentPages) {
  std::vector<unsigned> pages;
  for (const int page : pickedPages(model.pageSelection(), documentPages))
    pages.push_back(static_cast<unsigned>(page) + 1);
  return pages;
}

}  // namespace

CutPlan planFor(const PrintModel& model, std::optional<int> documentPages) {
  LabelRun run;
  run.pages = documentPages ? pagesOf(model, *documentPages) : std::vector<unsigned>{1};
  run.copies = static_cast<unsigned>(model.copies());
  run.isCollated = model.isCollated();
  run.printerRepeats = printerMakesCopies(*model.ppdFile());
  const double length = model.currentPaper().length;
  if (length > 0) run.labelLength = length * kMillimetresPerInch / kPointsPerInch;
  return {cutSettingsOf(*model.ppdFile()), run};
}

}  // namespace cutline
