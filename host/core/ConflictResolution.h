// What the PPD's constraints say about the choices marked now.
#pragma once

#include <string>
#include <vector>

#include "base/Result.h"

namespace cutline {

class OpenPrinter;

std::vector<Sentence> conflictSentences(const OpenPrinter& printer);

// Changes other options than the one chosen last until nothing conflicts, defaults first. An error,
// and no change, when that cannot be done.
Result<Done> resolveConflicts(OpenPrinter& printer);

}  // namespace cutline
