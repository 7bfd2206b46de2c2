// Which options go with a job, and which a preset keeps.
#pragma once

#include "cups/Destination.h"

namespace cutline {

class OpenPrinter;

// Every cut option of the PPD, CutMedia among them, the paper, other options that differ from the
// PPD's default or that somebody asked for, then what was asked for or saved beside the PPD (such
// as job-priority). Copies and page ranges are not among them.
OptionList jobOptions(const OpenPrinter& printer);
// Those of them that the PPD does not know.
OptionList jobOptionsBesidePpd(const OpenPrinter& printer);

// What a preset keeps: what is sent now, so that other programs print with it as this one does, and
// beside it, under names that nobody else reads, what is wanted where a rule changes it, so that
// the preset opens as it was shown.
OptionList presetOptions(const OpenPrinter& printer);
// The options of a preset, with what was wanted in the place of what was sent.
OptionList withWishes(const OptionList& preset);

}  // namespace cutline
