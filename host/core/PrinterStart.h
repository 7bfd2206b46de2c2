// How a print dialog begins with a printer of which nothing is saved: as the printer itself does.
#pragma once

#include <vector>

#include "base/OptionList.h"
#include "cups/DeviceFacts.h"
#include "cups/PpdFile.h"
#include "host/core/OptionTable.h"

namespace cutline {

// The option in which a job says where an IPP printer cuts. A job without it switches the printer's
// own cutter off.
inline constexpr char kCutMediaKeyword[] = "CutMedia";

// Notes in each size whether the printer has it in.
void markLoaded(std::vector<PaperSize>& papers, const DeviceFacts& device);

// What the printer does by itself, where the PPD's defaults say otherwise: its cutting, since a
// generated PPD has none as the default, and the paper that is in it. `options` are the PPD's, and
// `papers` know what is loaded.
OptionList printerStart(const PpdFile& ppd, const OptionTable& options,
                        const std::vector<PaperSize>& papers, const DeviceFacts& device);

}  // namespace cutline
