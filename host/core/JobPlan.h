// Where the tape of the job that a print model would send is cut.
#pragma once

#include <optional>

#include "strip/CutPlan.h"

namespace cutline {

class PrintModel;

// With the choices that are marked now, for documents of so many pages altogether; without a
// document, for one label. The model is open.
CutPlan planFor(const PrintModel& model, std::optional<int> documentPages);

}  // namespace cutline
