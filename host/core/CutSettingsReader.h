// What the choices that are marked in a PPD ask of the knife.
#pragma once

#include "strip/CutSettings.h"

namespace cutline {

class PpdFile;

// An option that the PPD does not have is off. Lengths that it does not have are not known.
CutSettings cutSettingsOf(const PpdFile& ppd);

}  // namespace cutline
