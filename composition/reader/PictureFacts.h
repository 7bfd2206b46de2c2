// What a picture says of itself.
#pragma once

#include <cstdint>

namespace cutline {

inline constexpr double kCentimetresPerInch = 2.54;

struct PictureFacts {
  std::uint32_t width = 0;  // pixels, as stored
  std::uint32_t height = 0;
  // Dots per inch as stored; 0 where the picture does not say.
  double acrossDensity = 0;
  double alongDensity = 0;
  // How the stored picture is turned to be looked at, from 1, which is not at all, to 8: as Exif
  // and TIFF say it.
  int orientation = 1;
};

}  // namespace cutline
