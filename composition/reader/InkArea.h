// The box around what is drawn.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <qpdf/QPDFMatrix.hh>
#include <stdexcept>

#include "composition/Layout.h"

namespace cutline {

// Where nothing limits what is drawn. No page is as large.
inline constexpr Area kEverywhere{-1e7, -1e7, 1e7, 1e7};

// A box with neither width nor height is one, too: of a line, or of a point.
inline bool isNowhere(const Area& area) { return area.right < area.left || area.top < area.bottom; }

inline Area common(const Area& one, const Area& other) {
  return {std::max(one.left, other.left), std::max(one.bottom, other.bottom),
          std::min(one.right, other.right), std::min(one.top, other.top)};
}

inline Area widened(const Area& area, double across, double along) {
  return {area.left - across, area.bottom - along, area.right + across, area.top + along};
}

// The upright box around the area where the matrix puts it.
inline Area moved(const QPDFMatrix& matrix, const Area& area) {
  const auto box = matrix.transformRectangle({area.left, area.bottom, area.right, area.top});
  return {box.llx, box.lly, box.urx, box.ury};
}

// Grows with what is put into it.
class InkArea {
 public:
  // Throws std::range_error for what is at no place that can be told.
  void add(const Area& area) {
    if (isNowhere(area)) return;
    if (std::isnan(area.left + area.bottom + area.right + area.top))
      throw std::range_error("no place");
    mArea = {std::min(mArea.left, area.left), std::min(mArea.bottom, area.bottom),
             std::max(mArea.right, area.right), std::max(mArea.top, area.top)};
  }

  bool isEmpty() const { return isNowhere(mArea); }
  // Nowhere while it is empty.
  const Area& area() const { return mArea; }

 private:
  static constexpr double kFar = std::numeric_limits<double>::infinity();
  Area mArea{kFar, kFar, -kFar, -kFar};
};

}  // namespace cutline
