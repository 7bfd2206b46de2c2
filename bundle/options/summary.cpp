// The panel's lines in the print dialog's summary.
#include <array>

#include "bundle/options/OptionPDE13_v400_.h"
#include "bundle/options/option_model.h"

namespace cutline {
namespace {

// Neither the canonical order nor that of the screen.
constexpr std::array<OptionId, kOptionCount> kSummaryOrder = {
    OptionId::cutEvery, OptionId::autoCut,        OptionId::cutEnd,
    OptionId::halfCut,  OptionId::specialTape,    OptionId::chainPrint,
    OptionId::mirror,   OptionId::removeBlkSpace, OptionId::cutMark,
};

}  // namespace

std::shared_ptr<SummaryInfo> OptionPDE13_v400_::summaryInfo() noexcept {
  auto info = std::make_shared<SummaryInfo>();
  std::vector<std::string> titles;
  for (const OptionId id : kSummaryOrder) {
    const OptionRow& row = rowOf(id);
    if (!hasSummaryLine(row)) continue;
    titles.push_back(titleOfOption(row, row.summaryKey));
    (*info)[titles.back()] = summaryValue(row);
  }
  // The whole list: a title that is empty in the user's language stays in it.
  (*info)[kSummaryDisplayOrderKey] = std::move(titles);
  return info;
}

bool OptionPDE13_v400_::hasSummaryLine(const OptionRow& row) const noexcept {
  if (!(this->*row.selection)) return false;
  // The cut-every line tells of automatic cutting, too.
  if (row.id == OptionId::autoCut) return !mCutEvery_Selection;
  if (row.id == OptionId::removeBlkSpace) return mTapeState == 0;
  return true;
}

// Whether the box's option is on, off or undecided; the cut-every line says its number for on.
std::string OptionPDE13_v400_::summaryValue(const OptionRow& row) noexcept {
  const OptionRow& switched = rowOf(row.switchedByBox);
  PDEChoice* selection = this->*row.selection;
  switch (indexOfMarkedOption((this->*switched.choices).get(), switched.keyword)) {
    case 0:
      return localizedString("RS_STitle_No");
    case 1:
      if (row.id != OptionId::cutEvery) return localizedString("RS_STitle_Yes");
      return selection->ppdTitle().value_or("(null)") + " " + localizedString("RS_Labels");
    default:
      // A title that cannot be read leaves the value empty.
      return selection->userTitle().value_or("");
  }
}

}  // namespace cutline
