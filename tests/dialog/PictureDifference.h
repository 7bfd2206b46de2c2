// How far two pictures of one size are from each other.
#pragma once

#include <QImage>
#include <algorithm>
#include <cstdlib>

namespace cutline::test {

// The largest difference of a colour's part at any pixel, from 0 to 255.
inline int largestDifference(const QImage& one, const QImage& other) {
  int largest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb here = one.pixel(x, y);
      const QRgb there = other.pixel(x, y);
      largest =
          std::max({largest, std::abs(qRed(here) - qRed(there)),
                    std::abs(qGreen(here) - qGreen(there)), std::abs(qBlue(here) - qBlue(there))});
    }
  }
  return largest;
}

}  // namespace cutline::test
