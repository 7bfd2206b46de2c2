// Plain geometry values shared by every port. Units are points (1/72 inch); y grows upwards.
#pragma once

namespace cutline {

struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

// `origin` is the lower-left corner.
struct Rect {
  Point origin;
  Size size;
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace cutline
