#include "tests/support/InkMap.h"

#include <algorithm>

namespace cutline::test {

InkMap::InkMap(int width, int height, const std::function<bool(int, int)>& isInk)
    : mWidth(width), mHeight(height) {
  mInk.reserve(static_cast<std::size_t>(width) * height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) mInk.push_back(isInk(x, y) ? 1 : 0);
}

bool InkMap::isInk(int x, int y) const {
  if (x < 0 || y < 0 || x >= mWidth || y >= mHeight) return false;
  return mInk[static_cast<std::size_t>(y) * mWidth + x] != 0;
}

int InkMap::count() const { return static_cast<int>(std::count(mInk.begin(), mInk.end(), 1)); }

InkMap InkMap::turned(int degrees) const {
  switch (degrees) {
    case 90:
      return {mHeight, mWidth, [this](int x, int y) { return isInk(mWidth - 1 - y, x); }};
    case 180:
      return {mWidth, mHeight,
              [this](int x, int y) { return isInk(mWidth - 1 - x, mHeight - 1 - y); }};
    case 270:
      return {mHeight, mWidth, [this](int x, int y) { return isInk(y, mHeight - 1 - x); }};
    default:
      return *this;
  }
}

InkMap InkMap::mirrored() const {
  return {mWidth, mHeight, [this](int x, int y) { return isInk(mWidth - 1 - x, y); }};
}

InkMap InkMap::shifted(int right, int down) const {
  return {mWidth, mHeight, [=, this](int x, int y) { return isInk(x - right, y - down); }};
}

double InkMap::shareFoundIn(const InkMap& other, int dots) const {
  const auto hasNear = [&](int x, int y) {
    for (int dy = -dots; dy <= dots; ++dy)
      for (int dx = -dots; dx <= dots; ++dx)
        if (other.isInk(x + dx, y + dy)) return true;
    return false;
  };
  int found = 0;
  for (int y = 0; y < mHeight; ++y)
    for (int x = 0; x < mWidth; ++x)
      if (isInk(x, y) && hasNear(x, y)) ++found;
  const int all = count();
  return all > 0 ? static_cast<double>(found) / all : 0;
}

double likeness(const InkMap& one, const InkMap& other, int dots) {
  return std::min(one.shareFoundIn(other, dots), other.shareFoundIn(one, dots));
}

}  // namespace cutline::test
