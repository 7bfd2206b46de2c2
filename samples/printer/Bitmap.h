// What a print head sets: one bit a dot.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace cutline::printer {

inline constexpr double kMillimetresPerInch = 25.4;

// `width` dots lie across the tape, `height` along it, in the order in which they are printed. A
// set bit is ink; the first dot of a row is the highest bit of its first byte, and rows begin on
// bytes.
class Bitmap {
 public:
  Bitmap() = default;
  Bitmap(std::uint32_t width, std::uint32_t height);

  static std::size_t bytesPerRow(std::uint32_t width) { return (std::size_t{width} + 7) / 8; }

  std::uint32_t width() const { return mWidth; }
  std::uint32_t height() const { return mHeight; }

  // Places outside the bitmap hold no ink, and take none.
  bool inkAt(std::int64_t x, std::int64_t y) const;
  void ink(std::int64_t x, std::int64_t y);

  bool rowIsBlank(std::uint32_t y) const;
  std::span<const std::uint8_t> bytes() const { return mBytes; }
  std::span<std::uint8_t> bytes() { return mBytes; }

  Bitmap mirroredAcross() const;
  Bitmap mirroredAlong() const;
  // The rows `first` to before `end`.
  Bitmap rows(std::uint32_t first, std::uint32_t end) const;

 private:
  bool holds(std::int64_t x, std::int64_t y) const;
  std::size_t byteAt(std::int64_t x, std::int64_t y) const;

  std::uint32_t mWidth = 0;
  std::uint32_t mHeight = 0;
  std::vector<std::uint8_t> mBytes;
};

}  // namespace cutline::printer
