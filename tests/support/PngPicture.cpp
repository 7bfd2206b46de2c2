#include "tests/support/PngPicture.h"

#include <png.h>

namespace cutline::test {

PngPicture::PngPicture(const std::string& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&image, path.c_str()) == 0) return;
  image.format = PNG_FORMAT_RGB;
  mBytes.resize(PNG_IMAGE_SIZE(image));
  if (png_image_finish_read(&image, nullptr, mBytes.data(), 0, nullptr) == 0) return;
  mWidth = image.width;
  mHeight = image.height;
}

std::uint32_t PngPicture::colourAt(std::uint64_t x, std::uint64_t y) const {
  const std::size_t at = (y * mWidth + x) * 3;
  return static_cast<std::uint32_t>(mBytes.at(at) << 16 | mBytes.at(at + 1) << 8 |
                                    mBytes.at(at + 2));
}

unsigned PngPicture::inkIn(const printer::Place& place) const {
  unsigned count = 0;
  for (std::uint64_t y = place.y; y < place.y + place.height; ++y) {
    for (std::uint64_t x = place.x; x < place.x + place.width; ++x) {
      if (colourAt(x, y) < 0x404040) ++count;
    }
  }
  return count;
}

bool PngPicture::isSame(const printer::Place& place, const PngPicture& other,
                        const printer::Place& there, bool mirrored) const {
  if (place.width != there.width || place.height != there.height) return false;
  for (std::uint64_t y = 0; y < place.height; ++y) {
    for (std::uint64_t x = 0; x < place.width; ++x) {
      const std::uint64_t from = mirrored ? place.width - 1 - x : x;
      if (colourAt(place.x + x, place.y + y) != other.colourAt(there.x + from, there.y + y))
        return false;
    }
  }
  return true;
}

}  // namespace cutline::test
