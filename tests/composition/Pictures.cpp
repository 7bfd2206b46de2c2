#include "tests/composition/Pictures.h"

#include <cstdio>
// The library's header needs the one above.
#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>
#include <unistd.h>
#include <webp/encode.h>

#include <cmath>
#include <cstdlib>

#include "tests/composition/MemoryFile.h"

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
  for (unsigned y = 0; y < width / 8; ++y) {
    for (unsigned x = 0; x < width / 4; ++x) {
      for (unsigned channel = 0; channel < channels - (hasOpacity ? 1 : 0); ++channel)
        pixels.bytes[(std::size_t{y} * width + x) * channels + channel] = 0;
    }
  }
  return pixels;
}

namespace {

class PngWriter {
 public:
  PngWriter()
      : mPng(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)),
        mInfo(png_create_info_struct(mPng)) {
    png_set_write_fn(mPng, &mFile, appendBytes, nullptr);
  }
  ~PngWriter() { png_destroy_write_struct(&mPng, &mInfo); }
  PngWriter(const PngWriter&) = delete;
  PngWriter& operator=(const PngWriter&) = delete;

  void header(const Pixels& pixels, int bits, int kind, bool isInterlaced) {
    png_set_IHDR(mPng, mInfo, pixels.width, pixels.height, bits, kind,
                 isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  }

  void density(Density density) {
    if (density.across <= 0) return;
    png_set_pHYs(mPng, mInfo,
                 static_cast<png_uint_32>(std::lround(density.across * kInchesPerMetre)),
                 static_cast<png_uint_32>(std::lround(density.along * kInchesPerMetre)),
                 PNG_RESOLUTION_METER);
  }

  void exif(std::string block) {
    png_set_eXIf_1(mPng, mInfo, static_cast<png_uint_32>(block.size()),
                   reinterpret_cast<png_bytep>(block.data()));
  }

  void blackAndWhite() {
    const png_color colours[] = {{0, 0, 0}, {255, 255, 255}};
    png_set_PLTE(mPng, mInfo, colours, 2);
  }

  // Each pixel's channel takes a byte here, whatever it takes in the file.
  std::string write(Pixels pixels) {
    std::vector<png_bytep> rows;
    for (unsigned y = 0; y < pixels.height; ++y)
      rows.push_back(pixels.bytes.data() + std::size_t{y} * pixels.width * pixels.channels);
    png_set_rows(mPng, mInfo, rows.data());
    png_write_png(mPng, mInfo, PNG_TRANSFORM_PACKING, nullptr);
    return mFile;
  }

 private:
  std::string mFile;
  png_structp mPng;
  png_infop mInfo;
};

}  // namespace

std::string pngOf(const Pixels& pixels, Density density, bool isInterlaced,
                  const std::string& exif) {
  PngWriter writer;
  writer.header(pixels, 8, kPngKinds[pixels.channels - 1], isInterlaced);
  writer.density(density);
  if (!exif.empty()) writer.exif(exif);
  return writer.write(pixels);
}

std::string palettePngOf(const Pixels& pixels, int bits, Density density) {
  PngWriter writer;
  writer.header(pixels, bits, PNG_COLOR_TYPE_PALETTE, false);
  writer.density(density);
  writer.blackAndWhite();
  Pixels numbers = pixels;
  for (std::uint8_t& number : numbers.bytes) number = number == 0 ? 0 : 1;
  return writer.write(std::move(numbers));
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

namespace {

void writeRows(TIFF* file, const Pixels& pixels, bool isBlackAndWhite) {
  for (unsigned y = 0; y < pixels.height; ++y) {
    const std::uint8_t* from =
        pixels.bytes.data() + std::size_t{y} * pixels.width * pixels.channels;
    std::vector<std::uint8_t> row(from, from + std::size_t{pixels.width} * pixels.channels);
    if (isBlackAndWhite) {
      row.assign((pixels.width + 7) / 8, 0);
      for (unsigned x = 0; x < pixels.width; ++x)
        row[x / 8] |= static_cast<std::uint8_t>(from[x] == 0 ? 0x80 >> x % 8 : 0);
    }
    TIFFWriteScanline(file, row.data(), y);
  }
}

void writePage(TIFF* file, const Pixels& pixels, const TiffForm& form) {
  TIFFSetField(file, TIFFTAG_IMAGEWIDTH, pixels.width);
  TIFFSetField(file, TIFFTAG_IMAGELENGTH, pixels.height);
  TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, pixels.channels);
  TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, form.isBlackAndWhite ? 1 : 8);
  TIFFSetField(file, TIFFTAG_PHOTOMETRIC,
               form.isBlackAndWhite  ? PHOTOMETRIC_MINISWHITE
               : pixels.channels < 3 ? PHOTOMETRIC_MINISBLACK
                                     : PHOTOMETRIC_RGB);
  TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  TIFFSetField(file, TIFFTAG_COMPRESSION, form.compression);
  TIFFSetField(file, TIFFTAG_ORIENTATION, form.orientation);
  TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, 16);
  if (pixels.channels % 2 == 0) {
    const std::uint16_t opacity = EXTRASAMPLE_UNASSALPHA;
    TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, &opacity);
  }
  if (form.density.across > 0) {
    TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT,
                 form.isOfCentimetre ? RESUNIT_CENTIMETER : RESUNIT_INCH);
    TIFFSetField(file, TIFFTAG_XRESOLUTION, form.density.across);
    TIFFSetField(file, TIFFTAG_YRESOLUTION, form.density.along);
  }
  writeRows(file, pixels, form.isBlackAndWhite);
  TIFFWriteDirectory(file);
}

// Numbers in the order of bytes that the block has.
class ExifWriter {
 public:
  explicit ExifWriter(bool isBigEndian) : mIsBigEndian(isBigEndian) {
    mBytes = isBigEndian ? "MM" : "II";
    number(42, 2);
    number(8, 4);
  }

  void number(unsigned value, unsigned size) {
    for (unsigned byte = 0; byte < size; ++byte) {
      const unsigned shift = 8 * (mIsBigEndian ? size - 1 - byte : byte);
      mBytes += static_cast<char>(value >> shift & 0xff);
    }
  }

  // A short number stands in the first two of four bytes.
  void entry(unsigned tag, unsigned form, unsigned value) {
    number(tag, 2);
    number(form, 2);
    number(1, 4);
    number(value, form == 3 ? 2 : 4);
    if (form == 3) number(0, 2);
  }

  std::string bytes() const { return mBytes; }

 private:
  std::string mBytes;
  bool mIsBigEndian;
};

}  // namespace

std::string tiffOf(const std::vector<Pixels>& pages, const TiffForm& form) {
  const MemoryFile memory;
  TIFF* file = TIFFFdOpen(::dup(memory.descriptor()), "picture", "w");
  for (const Pixels& page : pages) writePage(file, page, form);
  TIFFClose(file);
  return memory.bytes();
}

std::string exifOf(unsigned orientation, Density density, bool isBigEndian, unsigned unit) {
  constexpr unsigned kRationals = 8 + 2 + 4 * 12 + 4;
  ExifWriter writer(isBigEndian);
  writer.number(4, 2);
  writer.entry(0x112, 3, orientation);
  writer.entry(0x11a, 5, kRationals);
  writer.entry(0x11b, 5, kRationals + 8);
  writer.entry(0x128, 3, unit);
  writer.number(0, 4);
  for (const double dots : {density.across, density.along}) {
    writer.number(static_cast<unsigned>(dots * 10), 4);
    writer.number(dots > 0 ? 10 : 0, 4);
  }
  return writer.bytes();
}

}  // namespace cutline::test
