// Which options go with a job.
#pragma once

#include "cups/Destination.h"

namespace cutline {

class OpenPrinter;

// Every cut option of the PPD, the paper, other options that differ from the PPD's default or that
// somebody asked for, then what was asked for or saved beside the PPD (such as job-priority).
// Copies and page ranges are not among them.
OptionList jobOptions(const OpenPrinter& printer);

}  // namespace cutline
