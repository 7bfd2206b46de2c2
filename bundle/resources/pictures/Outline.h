// Outlines: paths written as text in a small space of their own ("M0,16 L5,0 C…", absolute, only
// M, L, C and Z, each number pair with a comma), and put into a picture by a placement.
#pragma once

#include <string>
#include <string_view>

#include "bundle/resources/pictures/Geometry.h"

namespace cutline::pictures {

struct Placement {
  Point origin;  // where the outline's (0, 0) comes to lie
  double scale = 1;
  bool mirrored = false;  // x grows to the left
};

// The outline's text with every pair of numbers moved to its place.
std::string placed(std::string_view outline, const Placement& placement);

// An outline through points that are computed.
class Outline {
 public:
  Outline& move(Point to);
  Outline& line(Point to);
  Outline& curve(Point leaving, Point arriving, Point to);
  Outline& close();
  std::string_view text() const { return mText; }

 private:
  void append(char command);
  void append(Point point);

  std::string mText;
};

// A number as the files write it: at most two decimals, never an exponent, in no locale.
std::string numberText(double value);

}  // namespace cutline::pictures
