#include "host/core/JobPlan.h"

#include "cups/PpdFacts.h"
#include "host/core/CutSettingsReader.h"
#include "host/core/PrintModel.h"

namespace cutline {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;

}  // namespace

CutPlan planFor(const PrintModel& model, std::optional<int> documentPages) {
  LabelRun run;
  run.pages = documentPages ? model.pagesToPrint(*documentPages) : PageList{1};
  run.copies = static_cast<unsigned>(model.copies());
  run.isCollated = model.isCollated();
  run.printerRepeats = printerMakesCopies(*model.ppdFile());
  const double length = model.currentPaper().length;
  if (length > 0) run.labelLength = length * kMillimetresPerInch / kPointsPerInch;
  return {cutSettingsOf(*model.ppdFile()), run};
}

}  // namespace cutline
