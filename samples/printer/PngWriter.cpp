#include "samples/printer/PngWriter.h"

#include <cmath>
#include <csetjmp>

namespace cutline::printer {
namespace {

constexpr double kInchesPerMetre = 1 / 0.0254;

// The callers report a failure themselves.
void ignore(png_structp, png_const_charp) {}

void fail(png_structp png, png_const_charp) { png_longjmp(png, 1); }

std::uint32_t perMetre(std::uint32_t dotsPerInch) {
  return static_cast<std::uint32_t>(std::lround(dotsPerInch * kInchesPerMetre));
}

}  // namespace

// libpng reports an error by a jump back into the function that called it, past any destructor. So
// each function below that calls it holds plain values only, and sets its own way back.

PngWriter::PngWriter(std::FILE* stream) : mStream(stream) {
  mPng = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, &fail, &ignore);
  if (mPng != nullptr) mInfo = png_create_info_struct(mPng);
}

PngWriter::~PngWriter() { png_destroy_write_struct(&mPng, &mInfo); }

bool PngWriter::begin(const PngFormat& format) {
  if (mInfo == nullptr) return false;
  std::array<png_color, PNG_MAX_PALETTE_LENGTH> colours{};
  for (std::size_t at = 0; at < format.palette.size(); ++at) {
    const Rgb& colour = format.palette[at];
    colours[at] = {colour.red, colour.green, colour.blue};
  }
  if (setjmp(png_jmpbuf(mPng)) != 0) return false;
  png_init_io(mPng, mStream);
  png_set_IHDR(mPng, mInfo, format.width, format.height, 8, PNG_COLOR_TYPE_PALETTE,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_PLTE(mPng, mInfo, colours.data(), static_cast<int>(format.palette.size()));
  png_set_pHYs(mPng, mInfo, perMetre(format.dotsPerInchX), perMetre(format.dotsPerInchY),
               PNG_RESOLUTION_METER);
  png_write_info(mPng, mInfo);
  return true;
}

bool PngWriter::row(std::span<const std::uint8_t> colours) {
  if (setjmp(png_jmpbuf(mPng)) != 0) return false;
  png_write_row(mPng, colours.data());
  return true;
}

bool PngWriter::end() {
  if (setjmp(png_jmpbuf(mPng)) != 0) return false;
  png_write_end(mPng, mInfo);
  return std::fflush(mStream) == 0;
}

}  // namespace cutline::printer
