#include "host/dialog/LayoutAsSeen.h"

#include <algorithm>
#include <array>

namespace cutline {
namespace {

constexpr int kFullTurn = 360;

struct TurnRow {
  Turn turn;
  int clockwise;  // on the paper
};
constexpr std::array kTurns = std::to_array<TurnRow>({{Turn::portrait, 0},
                                                      {Turn::reverseLandscape, 90},
                                                      {Turn::reversePortrait, 180},
                                                      {Turn::landscape, 270}});

// Right and up of the middle.
struct TurnedPlace {
  Position place;
  int x;
  int y;
};
constexpr std::array kPlacesAsTurned = std::to_array<TurnedPlace>({{Position::center, 0, 0},
                                                                   {Position::top, 0, 1},
                                                                   {Position::bottom, 0, -1},
                                                                   {Position::left, -1, 0},
                                                                   {Position::right, 1, 0},
                                                                   {Position::topLeft, -1, 1},
                                                                   {Position::topRight, 1, 1},
                                                                   {Position::bottomLeft, -1, -1},
                                                                   {Position::bottomRight, 1, -1}});

int withinCircle(int degrees) { return (degrees % kFullTurn + kFullTurn) % kFullTurn; }

Position turned(Position place, int clockwise) {
  const auto* row = std::ranges::find(kPlacesAsTurned, place, &TurnedPlace::place);
  if (row == kPlacesAsTurned.end()) return Position::center;
  int x = row->x;
  int y = row->y;
  for (int quarter = 0; quarter < clockwise / kQuarterTurn; ++quarter) {
    const int before = x;
    x = y;
    y = -before;
  }
  return std::ranges::find_if(kPlacesAsTurned,
                              [&](const TurnedPlace& each) { return each.x == x && each.y == y; })
      ->place;
}

}  // namespace

std::optional<int> turnAsSeen(Turn turn, const LabelPage& label) {
  const auto* row = std::ranges::find(kTurns, turn, &TurnRow::turn);
  if (row == kTurns.end()) return std::nullopt;
  return withinCircle(row->clockwise - label.upright);
}

Turn turnOnPaper(std::optional<int> degrees, const LabelPage& label) {
  if (!degrees) return Turn::automatic;
  const int clockwise = withinCircle(*degrees + label.upright);
  const auto* row = std::ranges::find(kTurns, clockwise, &TurnRow::clockwise);
  return row != kTurns.end() ? row->turn : Turn::automatic;
}

Position placeAsSeen(Position onPaper, const LabelPage& label) {
  return turned(onPaper, withinCircle(-label.upright));
}

Position placeOnPaper(Position asSeen, const LabelPage& label) {
  return turned(asSeen, withinCircle(label.upright));
}

}  // namespace cutline
