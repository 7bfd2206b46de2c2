#include "composition/reader/InkPath.h"

#include <cmath>
#include <numbers>

namespace cutline {
namespace {

// Of half a line's width: what a square end or a right angle reaches beyond it.
constexpr double kSquare = std::numbers::sqrt2;
// Points: a line of no width is as wide as a printer's dot.
constexpr double kThinnest = 0.2;

}  // namespace

Area StrokeStyle::around(const Area& middle, const QPDFMatrix& matrix, bool hasCorners) const {
  const double reach =
      std::abs(width) / 2 * (hasCorners && isMitered ? std::max(kSquare, miterLimit) : kSquare);
  // A circle becomes an ellipse with a box of these half measures.
  const double across = std::max(kThinnest, reach * std::hypot(matrix.a, matrix.c));
  const double along = std::max(kThinnest, reach * std::hypot(matrix.b, matrix.d));
  return widened(middle, across, along);
}

void InkPath::moveTo(const QPDFMatrix& matrix, double x, double y) {
  mPoints = 0;
  addPoint(matrix, x, y);
}

void InkPath::addPoint(const QPDFMatrix& matrix, double x, double y) {
  double across = 0, up = 0;
  matrix.transform(x, y, across, up);
  mBox.add({across, up, across, up});
  if (++mPoints > 2) mHasCorners = true;
}

void InkPath::addRectangle(const QPDFMatrix& matrix, double x, double y, double width,
                           double height) {
  mBox.add(moved(matrix, {std::min(x, x + width), std::min(y, y + height), std::max(x, x + width),
                          std::max(y, y + height)}));
  mPoints = 1;
}

Area InkPath::stroked(const QPDFMatrix& matrix, const StrokeStyle& style) const {
  return mBox.isEmpty() ? mBox.area() : style.around(mBox.area(), matrix, mHasCorners);
}

}  // namespace cutline
