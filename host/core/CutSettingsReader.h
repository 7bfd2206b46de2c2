// What the choices that are marked in a PPD ask of the knife.
#pragma once

#include "host/core/CutWords.h"
#include "strip/CutSettings.h"

namespace cutline {

class PpdFile;

// Our own keywords, where the PPD has any of them; else what `words` say of its choices.
// An option of ours that the PPD does not have is off. Lengths that it does not have are not known.
CutSettings cutSettingsOf(const PpdFile& ppd, const CutWords& words);
// With the words of the installation.
CutSettings cutSettingsOf(const PpdFile& ppd);

}  // namespace cutline
