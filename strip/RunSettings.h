// Settings that count pages, copies or documents, as the labels of a job that these come to.
#pragma once

#include "strip/CutSettings.h"
#include "strip/LabelRun.h"

namespace cutline {

// The same cuts counted in labels; the unit stays, for the words. Where the run leaves open what
// the printer takes for a copy or a document, the printer decides.
CutSettings inLabels(CutSettings asked, const LabelRun& run);

}  // namespace cutline
