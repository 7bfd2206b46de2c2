// A PNG file's pixels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "samples/printer/Strip.h"

namespace cutline::test {

class PngPicture {
 public:
  // Without width and height when the file is no PNG.
  explicit PngPicture(const std::string& path);

  unsigned width() const { return mWidth; }
  unsigned height() const { return mHeight; }
  // 0xRRGGBB
  std::uint32_t colourAt(std::uint64_t x, std::uint64_t y) const;
  // How many pixels of a place are dark.
  unsigned inkIn(const printer::Place& place) const;
  // Whether a place looks like another one of the same size, or like its mirror image.
  bool isSame(const printer::Place& place, const PngPicture& other, const printer::Place& there,
              bool mirrored = false) const;

 private:
  unsigned mWidth = 0;
  unsigned mHeight = 0;
  std::vector<std::uint8_t> mBytes;
};

}  // namespace cutline::test
