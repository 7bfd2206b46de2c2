// A cut plan for other programs, as docs/cut-plan.md describes it.
#pragma once

#include <iosfwd>

#include "strip/CutPlan.h"

namespace cutline {

inline constexpr int kPlanJsonVersion = 1;

// One object, with a line for each event and a line break at its end. `hasDocument`: the labels are
// those of a document.
void writePlanJson(const CutPlan& plan, bool hasDocument, std::ostream& out);

}  // namespace cutline
