// Places in a picture, in points, y growing downwards as in the files.
#pragma once

namespace cutline::pictures {

inline constexpr double kPictureWidth = 264;
inline constexpr double kPictureHeight = 84;

struct Point {
  double x = 0;
  double y = 0;
};

struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  constexpr double width() const { return right - left; }
  constexpr double height() const { return bottom - top; }
  constexpr Point centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

}  // namespace cutline::pictures
