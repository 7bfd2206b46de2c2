#include "strip/CutSettings.h"

#include <algorithm>

namespace cutline {

CutSettings inForce(CutSettings asked) {
  asked.labelsPerCut = std::max(1U, asked.labelsPerCut);
  const bool isUnknown = asked.authority != CutAuthority::Settings;
  if (!asked.isSpecialTape && !isUnknown) return asked;
  for (bool CutSettings::*of :
       {&CutSettings::cutsAutomatically, &CutSettings::cutsAtEnd, &CutSettings::halfCuts,
        &CutSettings::chains, &CutSettings::printsCutMarks})
    asked.*of = false;
  return asked;
}

}  // namespace cutline
