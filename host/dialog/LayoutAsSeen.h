// Turns and places as a reader sees them on the strip, and as the composer has them: relative to
// the paper, which on a tape lies a quarter round.
#pragma once

#include <optional>

#include "composition/Layout.h"

namespace cutline {

// Clockwise degrees from a reader's upright; nothing for an automatic turn.
std::optional<int> turnAsSeen(Turn turn, const LabelPage& label);
// 0, 90, 180 or 270 degrees, or nothing.
Turn turnOnPaper(std::optional<int> degrees, const LabelPage& label);

// The names of the places mean the label as a reader holds it, or the paper.
Position placeAsSeen(Position onPaper, const LabelPage& label);
Position placeOnPaper(Position asSeen, const LabelPage& label);

}  // namespace cutline
