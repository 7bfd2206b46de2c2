// Pictures made for a test.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace cutline::test {

// Pixels, row by row from above, with 1 to 4 bytes each: grey, grey and opacity, colours, colours
// and opacity.
struct Pixels {
  unsigned width = 0;
  unsigned height = 0;
  unsigned channels = 1;
  std::vector<std::uint8_t> bytes;
};

// White, with a black mark in the upper left corner: a quarter as wide as the picture, and an
// eighth as high.
Pixels markedPixels(unsigned width, unsigned height, unsigned channels = 3);

struct Density {
  double across = 0;  // dots an inch; 0 for none
  double along = 0;
};

// With a block of Exif where it is not empty.
std::string pngOf(const Pixels& pixels, Density density = {}, bool isInterlaced = false,
                  const std::string& exif = {});
// One channel's black pixels as the first of two colours, and all others as the second, white.
std::string palettePngOf(const Pixels& pixels, int bits, Density density);
// With a block of Exif where it is not empty; three channels or one.
std::string jpegOf(const Pixels& pixels, Density density = {}, const std::string& exif = {});
std::string webpOf(const Pixels& pixels);

// What a TIFF's picture is stored as.
struct TiffForm {
  unsigned compression = 1;  // none
  unsigned orientation = 1;
  bool isBlackAndWhite = false;  // of one channel: a bit a pixel
  Density density;
  bool isOfCentimetre = false;  // the density
};
// A picture a page, all of the same form.
std::string tiffOf(const std::vector<Pixels>& pages, const TiffForm& form = {});

// A block of Exif that says how a picture is turned, and its density: of an inch, or for the unit
// 3, of a centimetre.
std::string exifOf(unsigned orientation, Density density = {}, bool isBigEndian = false,
                   unsigned unit = 2);

}  // namespace cutline::test
