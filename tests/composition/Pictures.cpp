#include "tests/composition/Pictures.h"

#include <cstdio>
// The library's header needs the one above.
#include <jpeglib.h>
#include <png.h>
#include <webp/encode.h>

#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace cutline::test {
namespace {

constexpr double kInchesPerMetre = 1 / 0.0254;

void appendBytes(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<char*>(bytes), count);
}

constexpr int kPngKinds[] = {PNG_COLOR_TYPE_GRAY, PNG_COLOR_TYPE_GRAY_ALPHA, PNG_COLOR_TYPE_RGB,
                             PNG_COLOR_TYPE_RGB_ALPHA};

}  // namespace

Pixels markedPixels(unsigned width, unsigned height, unsigned channels) {
  Pixels pixels{width, height, channels, {}};
  pixels.bytes.assign(std::size_t{width} * height * channels, 255);
  const bool hasOpacity = channels % 2 == 0;
  for (unsigned y = 0; y < width / 4; ++y) {
    for (unsigned x = 0; x < width / 4; ++x) {
      for (unsigned channel = 0; channel < channels - (hasOpacity ? 1 : 0); ++channel)
        pixels.bytes[(std::size_t{y} * width + x) * channels + channel] = 0;
    }
  }
  return pixels;
}

std::string pngOf(const Pixels& pixels, Density density, bool isInterlaced) {
  std::string file;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(png, &file, appendBytes, nullptr);
  png_set_IHDR(png, info, pixels.width, pixels.height, 8, kPngKinds[pixels.channels - 1],
               isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (density.across > 0)
    png_set_pHYs(png, info, static_cast<png_uint_32>(std::lround(density.across * kInchesPerMetre)),
                 static_cast<png_uint_32>(std::lround(density.along * kInchesPerMetre)),
                 PNG_RESOLUTION_METER);
  std::vector<png_bytep> rows;
  for (unsigned y = 0; y < pixels.height; ++y)
    rows.push_back(const_cast<png_bytep>(pixels.bytes.data()) +
                   std::size_t{y} * pixels.width * pixels.channels);
  png_set_rows(png, info, rows.data());
  png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
  png_destroy_write_struct(&png, &info);
  return file;
}

std::string jpegOf(const Pixels& pixels, Density density, const std::string& exif) {
  jpeg_compress_struct jpeg{};
  jpeg_error_mgr errors{};
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&jpeg, &bytes, &size);
  jpeg.image_width = pixels.width;
  jpeg.image_height = pixels.height;
  jpeg.input_components = static_cast<int>(pixels.channels);
  jpeg.in_color_space = pixels.channels == 1   ? JCS_GRAYSCALE
                        : pixels.channels == 3 ? JCS_RGB
                                               : JCS_CMYK;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 95, TRUE);
  if (density.across > 0) {
    jpeg.density_unit = 1;
    jpeg.X_density = static_cast<UINT16>(density.across);
    jpeg.Y_density = static_cast<UINT16>(density.along);
  }
  jpeg_start_compress(&jpeg, TRUE);
  if (!exif.empty()) {
    const std::string block = std::string("Exif\0\0", 6) + exif;
    jpeg_write_marker(&jpeg, JPEG_APP0 + 1, reinterpret_cast<const JOCTET*>(block.data()),
                      static_cast<unsigned>(block.size()));
  }
  while (jpeg.next_scanline < jpeg.image_height) {
    auto* row = const_cast<JSAMPROW>(pixels.bytes.data()) +
                std::size_t{jpeg.next_scanline} * pixels.width * pixels.channels;
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  const std::string file(reinterpret_cast<char*>(bytes), size);
  std::free(bytes);
  return file;
}

std::string webpOf(const Pixels& pixels) {
  std::uint8_t* bytes = nullptr;
  const int stride = static_cast<int>(pixels.width * pixels.channels);
  auto* const encode = pixels.channels == 4 ? WebPEncodeLosslessRGBA : WebPEncodeLosslessRGB;
  const std::size_t size = encode(pixels.bytes.data(), static_cast<int>(pixels.width),
                                  static_cast<int>(pixels.height), stride, &bytes);
  const std::string file(reinterpret_cast<char*>(bytes), size);
  WebPFree(bytes);
  return file;
}

}  // namespace cutline::test
