// How a page is laid onto a label: its size, its turn, its place. Pure geometry.
#pragma once

#include <optional>

#include "composition/LabelPage.h"

namespace cutline {

enum class Scaling {
  automatic,  // its own size; made to fit where it is larger than the label or has no size
  actual,     // its own size
  fit,        // all of it in the printable area, as large as that allows
  fill,       // the whole printable area covered, with the rest cut off
  percent,    // of its own size
};

// As IPP's orientation-requested: relative to the paper, with the quarters counter-clockwise.
enum class Turn {
  automatic = 0,  // a quarter where page and paper lie different ways
  portrait = 3,
  landscape = 4,
  reverseLandscape = 5,
  reversePortrait = 6,
};

// Relative to the paper as its PPD has it.
enum class Position {
  center,
  top,
  bottom,
  left,
  right,
  topLeft,
  topRight,
  bottomLeft,
  bottomRight,
};

struct LayoutSettings {
  Scaling scaling = Scaling::automatic;
  double percent = 100;  // for Scaling::percent; more than 0
  Turn turn = Turn::automatic;
  Position position = Position::center;
  friend bool operator==(const LayoutSettings&, const LayoutSettings&) = default;
};

// A page as a reader holds it.
struct PageSize {
  double width = 0;  // points
  double height = 0;
  // False for a picture that states no size: width and height say its proportions only.
  bool isStated = true;
  friend bool operator==(const PageSize&, const PageSize&) = default;
};

// From the page's coordinates, origin lower left, to the label's: x' = a x + c y + e,
// y' = b x + d y + f, as the operator cm of a PDF takes it.
struct Placement {
  double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
  double scale = 1;  // label points a point of the page
  int turn = 0;      // clockwise degrees: 0, 90, 180 or 270
};

Placement placed(const PageSize& page, const LabelPage& label, const LayoutSettings& settings);

// Clockwise degrees that a page is turned by on this label.
int turnOf(const PageSize& page, const LabelPage& label, Turn turn);

// The length that the label needs so that the page, laid out as the settings say, lies between its
// margins; within the bounds.
double lengthFor(const PageSize& page, const LabelPage& label, const LayoutSettings& settings,
                 const LengthBounds& bounds);

// A part of a label, in its coordinates; nothing in it when right <= left or top <= bottom.
struct Area {
  double left = 0, bottom = 0, right = 0, top = 0;
  friend bool operator==(const Area&, const Area&) = default;
};

// Whether the printer reaches all of it on this label, but for less than anybody sees.
bool isPrintable(const Area& ink, const LabelPage& label);

// The largest whole percentage of the page's own size at which `ink`, the part of this label that
// the page as placed now has something in, lies in the printable area; nothing when it does now, or
// when no size helps.
std::optional<int> percentWithoutLoss(const PageSize& page, const LabelPage& label,
                                      const LayoutSettings& settings, const Area& ink);

// Whether all of the page, laid out so, lies where its label can be printed.
bool isWhollyPrintable(const PageSize& page, const LabelPage& label,
                       const LayoutSettings& settings);

}  // namespace cutline
