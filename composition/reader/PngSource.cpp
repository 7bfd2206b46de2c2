#include "composition/reader/PngSource.h"

#include <png.h>

#include <csetjmp>
#include <cstring>
#include <string_view>
#include <vector>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/Exif.h"
#include "composition/reader/LabelWriter.h"
#include "composition/reader/PixelImage.h"
#include "composition/reader/PngStream.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr double kMetresPerInch = 0.0254;
constexpr png_uint_32 kWidest = 0x7fffffff;  // the picture's area is limited instead

[[noreturn]] void onError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void onWarning(png_structp, png_const_charp) {}

void takeBytes(png_structp png, png_bytep to, png_size_t count) {
  auto& rest = *static_cast<std::string_view*>(png_get_io_ptr(png));
  if (count > rest.size()) png_error(png, "cut short");
  std::memcpy(to, rest.data(), count);
  rest.remove_prefix(count);
}

// The library leaves these by a jump where it finds an error: they own nothing. No for an error.

bool readInfo(png_structp png, png_infop info) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_read_info(png, info);
  return true;
}

// Grey or colours of 8 bits, with opacity where there is any. How often each row is read.
bool startRows(png_structp png, png_infop info, int& passes) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_set_expand(png);
  png_set_scale_16(png);
  passes = png_set_interlace_handling(png);
  png_read_update_info(png, info);
  return true;
}

bool readRow(png_structp png, png_bytep row) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_read_row(png, row, nullptr);
  return true;
}

bool readEnd(png_structp png) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_read_end(png, nullptr);
  return true;
}

void need(bool success) {
  if (!success) throw Refusal{DocumentProblem::damaged, {}};
}

// What the library needs to read a PNG; null where there is no memory.
struct PngStructs {
  PngStructs()
      : png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning)),
        info(png != nullptr ? png_create_info_struct(png) : nullptr) {}
  ~PngStructs() { png_destroy_read_struct(&png, &info, nullptr); }
  PngStructs(const PngStructs&) = delete;
  PngStructs& operator=(const PngStructs&) = delete;

  png_structp png;
  png_infop info;
};

class PngReader {
 public:
  explicit PngReader(std::string_view bytes)
      : mBytes(bytes), mRest(bytes), mPng(mStructs.png), mInfo(mStructs.info) {
    if (mInfo == nullptr) throw Refusal{DocumentProblem::tooLarge, {}};
    png_set_read_fn(mPng, &mRest, takeBytes);
    png_set_user_limits(mPng, kWidest, kWidest);
    need(readInfo(mPng, mInfo));
  }

  PictureFacts facts() const {
    PictureFacts facts;
    facts.width = png_get_image_width(mPng, mInfo);
    facts.height = png_get_image_height(mPng, mInfo);
    // Dots a metre; 0 where the picture says nothing, or proportions only.
    facts.acrossDensity = png_get_x_pixels_per_meter(mPng, mInfo) * kMetresPerInch;
    facts.alongDensity = png_get_y_pixels_per_meter(mPng, mInfo) * kMetresPerInch;
    png_bytep exif = nullptr;
    png_uint_32 size = 0;
    if (png_get_eXIf_1(mPng, mInfo, &size, &exif) != 0)
      readExif({reinterpret_cast<const char*>(exif), size}, facts);
    return facts;
  }

  QPDFObjectHandle image(QPDF& pdf) {
    return canGoAlong(mPng, mInfo) ? packed(pdf) : unpacked(pdf);
  }

 private:
  // Unpacked all the same, to see that all of it is there: what is broken, every reader of the PDF
  // would draw in its own way.
  QPDFObjectHandle packed(QPDF& pdf) {
    readRows([](const std::uint8_t*) {});
    need(readEnd(mPng));
    return packedImage(pdf, mBytes, mPng, mInfo);
  }

  QPDFObjectHandle unpacked(QPDF& pdf) {
    int passes = 1;
    need(startRows(mPng, mInfo, passes));
    PixelImage pixels(png_get_image_width(mPng, mInfo), png_get_image_height(mPng, mInfo),
                      png_get_channels(mPng, mInfo));
    if (passes == 1)
      readRows([&](const std::uint8_t* row) { pixels.addRow(row); });
    else
      readInterlaced(passes, pixels);
    need(readEnd(mPng));
    return pixels.image(pdf);
  }

  template <typename Take>
  void readRows(Take take) {
    std::vector<std::uint8_t> row(png_get_rowbytes(mPng, mInfo));
    for (png_uint_32 y = png_get_image_height(mPng, mInfo); y > 0; --y) {
      need(readRow(mPng, row.data()));
      take(row.data());
    }
  }

  // Each pass fills in more of all rows.
  void readInterlaced(int passes, PixelImage& pixels) {
    const std::size_t rowSize = png_get_rowbytes(mPng, mInfo);
    const std::size_t height = png_get_image_height(mPng, mInfo);
    std::vector<std::uint8_t> rows(rowSize * height);
    for (int pass = 0; pass < passes; ++pass) {
      for (std::size_t y = 0; y < height; ++y) need(readRow(mPng, rows.data() + y * rowSize));
    }
    for (std::size_t y = 0; y < height; ++y) pixels.addRow(rows.data() + y * rowSize);
  }

  std::string_view mBytes;
  std::string_view mRest;
  PngStructs mStructs;
  png_structp mPng;
  png_infop mInfo;
};

}  // namespace

PngSource::PngSource(int descriptor) : mBytes(contentsOf(descriptor)) {
  mFacts = PngReader(mBytes).facts();
  refuseUnlikelySize(mFacts.width, mFacts.height);
}

DrawnPage PngSource::draw(int, LabelWriter& labels) {
  return drawnPicture(labels.pdf(), PngReader(mBytes).image(labels.pdf()), mFacts);
}

}  // namespace cutline
