// What of a job's cuts somebody may not have meant, and what would mend it. Facts, without words.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "strip/CutPlan.h"

namespace cutline {

// The labels do not come out even: the last piece has fewer than the others.
struct OddPiece {
  std::uint64_t each = 0;  // labels of the other pieces
  std::uint64_t last = 0;
  std::optional<unsigned> betterCount;   // the nearest number between cuts that divides the labels
  std::optional<unsigned> betterCopies;  // the next number of copies that fills the last piece

  friend bool operator==(const OddPiece&, const OddPiece&) = default;
};

// `counts` are the numbers of labels between cuts that the driver offers, `mostCopies` the most
// that can be asked for. Nothing where the pieces are alike, and where there is one only.
std::optional<OddPiece> oddPiece(const CutPlan& plan, const std::vector<unsigned>& counts,
                                 unsigned mostCopies);

// So much that one is asked before it is printed: more than 200 labels, or two metres of tape.
bool isMuch(const CutPlan& plan);

}  // namespace cutline
