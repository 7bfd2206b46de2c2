// Where there is ink, dot by dot, and whether two pictures have it at the same places.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace cutline::test {

class InkMap {
 public:
  InkMap(int width, int height, const std::function<bool(int x, int y)>& isInk);

  int width() const { return mWidth; }
  int height() const { return mHeight; }
  // No beyond the edges.
  bool isInk(int x, int y) const;
  int count() const;
  // Turned counter-clockwise by 0, 90, 180 or 270 degrees.
  InkMap turned(int degrees) const;
  // Left and right exchanged.
  InkMap mirrored() const;
  InkMap shifted(int right, int down) const;
  // The share of this one's ink that the other one has, too, at most so many dots away in each
  // direction: 1 for all of it.
  double shareFoundIn(const InkMap& other, int dots) const;

 private:
  int mWidth;
  int mHeight;
  std::vector<std::uint8_t> mInk;
};

// The smaller of both shares: how much of what either has is in the other one.
double likeness(const InkMap& one, const InkMap& other, int dots);

}  // namespace cutline::test
