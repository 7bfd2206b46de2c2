// A path that is being made by a content stream, as far as its box tells (ISO 32000, 8.5).
#pragma once

#include <qpdf/QPDFMatrix.hh>

#include "composition/reader/InkArea.h"

namespace cutline {

struct StrokeStyle {
  double width = 1;
  double miterLimit = 10;
  bool isMitered = true;  // lines meet in a point

  // How far beyond its middle a line is drawn, in the coordinates that `matrix` leads to.
  Area around(const Area& middle, const QPDFMatrix& matrix, bool hasCorners) const;
};

class InkPath {
 public:
  // Points are in the coordinates that `matrix` leads from.
  void moveTo(const QPDFMatrix& matrix, double x, double y);
  void addPoint(const QPDFMatrix& matrix, double x, double y);
  void addRectangle(const QPDFMatrix& matrix, double x, double y, double width, double height);
  // Where it has lines that meet.
  void addCorner() { mHasCorners = true; }

  // What filling it would ink, at most: curves lie between their points.
  const Area& filled() const { return mBox.area(); }
  Area stroked(const QPDFMatrix& matrix, const StrokeStyle& style) const;

 private:
  InkArea mBox;
  int mPoints = 0;  // since it was moved
  bool mHasCorners = false;
};

}  // namespace cutline
