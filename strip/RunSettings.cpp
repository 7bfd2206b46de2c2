#include "strip/RunSettings.h"

#include <algorithm>
#include <optional>

namespace cutline {

namespace {

// What the printer gets as the copies of one document: with copies that are sent one after the
// other it knows of no second one.
bool isOneCopy(const LabelRun& run) { return run.copies == 1 || !run.printerRepeats; }

// Nothing where the words alone do not say it.
std::optional<std::uint64_t> labelsOf(CutUnit unit, const LabelRun& run) {
  switch (unit) {
    case CutUnit::Page:
      return run.printerRepeats && !run.isCollated ? run.copies : 1;
    case CutUnit::Copy:
      if (isOneCopy(run)) return run.labels();
      if (run.isCollated || run.pages.size() == 1) return run.pages.size();
      return std::nullopt;
    case CutUnit::Document:
      if (isOneCopy(run)) return run.labels();
      return std::nullopt;
    case CutUnit::Label:
      break;
  }
  return 1;
}

}  // namespace

CutSettings inLabels(CutSettings asked, const LabelRun& run) {
  if (!asked.cutsAutomatically || run.labels() == 0) return asked;
  if (asked.unit != CutUnit::Label) {
    const std::optional<std::uint64_t> labels = labelsOf(asked.unit, run);
    if (!labels) asked.authority = CutAuthority::Printer;
    asked.labelsPerCut = static_cast<unsigned>(labels.value_or(1));
  }
  asked.labelsPerCut = std::max(1U, asked.labelsPerCut);
  asked.cutsRest = asked.cutsRest || run.labels() % asked.labelsPerCut == 0;
  return asked;
}

}  // namespace cutline
