// A cut plan in words.
#pragma once

#include <vector>

#include "base/Sentence.h"
#include "strip/CutPlan.h"

namespace cutline {

// "12 labels, cut every 3, half cut between: 4 pieces, 612 mm of tape".
Sentence planSentence(const CutPlan& plan);

// One line for each group of events that are alike, in the order of the strip.
std::vector<Sentence> planLines(const CutPlan& plan);

}  // namespace cutline
