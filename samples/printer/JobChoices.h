// The PPD choices of a print job.
#pragma once

#include <optional>
#include <string>

#include "samples/printer/CutPlan.h"

namespace cutline::printer {

// The choices that are in force for a job: the defaults of the PPD in the file `ppdPath`, overlaid
// with the job's `options` as the scheduler hands them to a filter ("NAME=VALUE NAME=VALUE ..."),
// and the printer's family. None when the file is no PPD.
std::optional<Choices> choicesOf(const std::string& ppdPath, const std::string& options);

}  // namespace cutline::printer
