#include "samples/printer/Bitmap.h"

#include <algorithm>

namespace cutline::printer {
namespace {

std::uint8_t maskOf(std::int64_t x) { return static_cast<std::uint8_t>(0x80 >> (x % 8)); }

}  // namespace

Bitmap::Bitmap(std::uint32_t width, std::uint32_t height)
    : mWidth(width), mHeight(height), mBytes(bytesPerRow(width) * height) {}

bool Bitmap::holds(std::int64_t x, std::int64_t y) const {
  return x >= 0 && y >= 0 && x < mWidth && y < mHeight;
}

std::size_t Bitmap::byteAt(std::int64_t x, std::int64_t y) const {
  return static_cast<std::size_t>(y) * bytesPerRow(mWidth) + static_cast<std::size_t>(x / 8);
}

bool Bitmap::inkAt(std::int64_t x, std::int64_t y) const {
  return holds(x, y) && (mBytes[byteAt(x, y)] & maskOf(x)) != 0;
}

void Bitmap::ink(std::int64_t x, std::int64_t y) {
  if (holds(x, y)) mBytes[byteAt(x, y)] |= maskOf(x);
}

bool Bitmap::rowIsBlank(std::uint32_t y) const {
  const auto row = bytes().subspan(byteAt(0, y), bytesPerRow(mWidth));
  return std::all_of(row.begin(), row.end(), [](std::uint8_t dots) { return dots == 0; });
}

Bitmap Bitmap::mirroredAcross() const {
  Bitmap mirrored(mWidth, mHeight);
  for (std::uint32_t y = 0; y < mHeight; ++y) {
    for (std::uint32_t x = 0; x < mWidth; ++x) {
      if (inkAt(x, y)) mirrored.ink(mWidth - 1 - x, y);
    }
  }
  return mirrored;
}

Bitmap Bitmap::mirroredAlong() const {
  Bitmap mirrored(mWidth, mHeight);
  const auto stride = static_cast<std::ptrdiff_t>(bytesPerRow(mWidth));
  for (std::uint32_t y = 0; y < mHeight; ++y) {
    const auto from = mBytes.begin() + stride * (mHeight - 1 - y);
    std::copy(from, from + stride, mirrored.mBytes.begin() + stride * y);
  }
  return mirrored;
}

Bitmap Bitmap::rows(std::uint32_t first, std::uint32_t end) const {
  Bitmap part(mWidth, end - first);
  const auto stride = static_cast<std::ptrdiff_t>(bytesPerRow(mWidth));
  std::copy(mBytes.begin() + stride * first, mBytes.begin() + stride * end, part.mBytes.begin());
  return part;
}

}  // namespace cutline::printer
