#include "composition/reader/TextLayout.h"

#include <algorithm>
#include <array>

namespace cutline {
namespace {

struct Row {
  int degrees;
  Turn turn;
};
constexpr std::array kTurns = std::to_array<Row>({
    {0, Turn::portrait},
    {90, Turn::reverseLandscape},
    {180, Turn::reversePortrait},
    {270, Turn::landscape},
});

}  // namespace

Turn textTurn(const LabelPage& label, Turn asked) {
  if (asked != Turn::automatic) return asked;
  const auto* row = std::ranges::find(kTurns, label.upright, &Row::degrees);
  return row != kTurns.end() ? row->turn : Turn::portrait;
}

TextRoom textRoom(const CompositionRequest& request, Turn turn) {
  const LabelPage& label = request.label;
  const bool isAlong = turn == Turn::landscape || turn == Turn::reverseLandscape;
  const double width = label.printableWidth();
  const double length = label.printableLength();
  if (!isAlong) return {width, length, false};
  if (!request.lengthBounds) return {length, width, false};
  const double margins = label.length - length;
  return {request.lengthBounds->longest - margins, width, true};
}

}  // namespace cutline
