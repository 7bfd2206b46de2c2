// The label that documents are laid onto.
#pragma once

namespace cutline {

inline constexpr double kPointsPerMillimetre = 72 / 25.4;
inline constexpr int kQuarterTurn = 90;  // degrees

// Points; the origin is the paper's lower left corner and y grows upwards, as in a PDF. The paper
// is as its PPD has it: the width lies across the tape or roll, the length along it.
struct LabelPage {
  double width = 0;
  double length = 0;
  double left = 0, bottom = 0, right = 0, top = 0;  // the printable area's edges
  // Clockwise degrees that put what a reader holds upright onto the paper: 0 on a roll, a quarter
  // on a tape, which is read along its length.
  int upright = 0;
  // Clockwise degrees for a page that lies the other way than the paper: 90, or 270 where the PPD
  // has "*LandscapeOrientation: Plus90".
  int landscape = 90;
  // The content chooses the length: the paper counts as long, however short it turns out.
  bool isContinuous = false;

  double printableWidth() const noexcept { return right - left; }
  double printableLength() const noexcept { return top - bottom; }
  friend bool operator==(const LabelPage&, const LabelPage&) = default;
};

// Between what lengths the label may be cut where it is as long as its content, in points.
struct LengthBounds {
  double shortest = 0;
  double longest = 0;
  friend bool operator==(const LengthBounds&, const LengthBounds&) = default;
};

}  // namespace cutline
