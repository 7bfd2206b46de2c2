#include "samples/printer/RasterPages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

#include "samples/printer/CommandStream.h"

namespace cutline::printer {
namespace {

constexpr double kPointsPerInch = 72;
constexpr unsigned kMaxResolution = 10'000;
constexpr unsigned kMiddle = 128;

// Thresholds spread over the greys, each as far as can be from those beside it.
constexpr std::array<std::array<unsigned, 4>, 4> kPattern = {
    {{8, 136, 40, 168}, {200, 72, 232, 104}, {56, 184, 24, 152}, {248, 120, 216, 88}}};

// The library hands on whatever number stands in the stream, which its enumeration need not have.
unsigned colorSpaceOf(const cups_page_header2_t& header) {
  unsigned number = 0;
  static_assert(sizeof number == sizeof header.cupsColorSpace);
  std::memcpy(&number, &header.cupsColorSpace, sizeof number);
  return number;
}

bool blackIsZero(unsigned space) { return space == CUPS_CSPACE_SW || space == CUPS_CSPACE_W; }

// The side of a label in dots: the page's, or where the stream doesn't name it the print's.
std::uint32_t sideOf(double points, unsigned dotsPerInch, unsigned printed) {
  const double dots = std::round(points * dotsPerInch / kPointsPerInch);
  if (!(dots > 0)) return printed;
  return static_cast<std::uint32_t>(std::min<double>(dots, kMaxSide + 1.0));
}

std::int64_t dotsIn(double points, unsigned dotsPerInch) {
  const double dots = points * dotsPerInch / kPointsPerInch;
  constexpr double kFarthest = kMaxSide;
  return std::isfinite(dots) ? std::llround(std::clamp(dots, -kFarthest, kFarthest)) : 0;
}

}  // namespace

RasterPages::RasterPages(int descriptor, Halftone halftone)
    : mRaster(cupsRasterOpen(descriptor, CUPS_RASTER_READ), &cupsRasterClose),
      mHalftone(halftone) {}

bool RasterPages::refuse(std::string problem) {
  mProblem = std::move(problem);
  return false;
}

bool RasterPages::headerIsUsable() {
  const unsigned space = colorSpaceOf(mHeader);
  const bool grey = mHeader.cupsBitsPerPixel == 8 && mHeader.cupsNumColors == 1 &&
                    (blackIsZero(space) || space == CUPS_CSPACE_K);
  if (!grey) return refuse("the page is not in 8 bit grey");
  if (dotsAcross() == 0 || dotsAlong() == 0 || std::max(dotsAcross(), dotsAlong()) > kMaxResolution)
    return refuse("the page's resolution is unknown");
  if (mHeader.cupsWidth > kMaxSide || mHeader.cupsHeight > kMaxSide ||
      mHeader.cupsBytesPerLine < mHeader.cupsWidth || mHeader.cupsBytesPerLine > 2 * kMaxSide)
    return refuse("the page is too large");
  return true;
}

bool RasterPages::next() {
  if (!mRaster) return refuse("the data is no CUPS raster");
  if (cupsRasterReadHeader2(mRaster.get(), &mHeader) == 0) return false;
  if (!headerIsUsable()) return false;
  const std::uint32_t width = sideOf(mHeader.cupsPageSize[0], dotsAcross(), mHeader.cupsWidth);
  const std::uint32_t height = sideOf(mHeader.cupsPageSize[1], dotsAlong(), mHeader.cupsHeight);
  if (width > kMaxSide || height > kMaxSide || Bitmap::bytesPerRow(width) * height > kMaxLabelBytes)
    return refuse("the page is too large");
  mLabel = Bitmap(width, height);
  mLeft = dotsIn(mHeader.cupsImagingBBox[0], dotsAcross());
  const bool placed = mHeader.cupsPageSize[1] > 0 && mHeader.cupsImagingBBox[3] > 0;
  mTop = placed ? dotsIn(mHeader.cupsPageSize[1] - mHeader.cupsImagingBBox[3], dotsAlong()) : 0;
  return readRows();
}

bool RasterPages::readRows() {
  mRow.resize(mHeader.cupsBytesPerLine);
  for (std::uint32_t y = 0; y < mHeader.cupsHeight; ++y) {
    if (cupsRasterReadPixels(mRaster.get(), mRow.data(), mHeader.cupsBytesPerLine) == 0)
      return refuse("the page is not complete");
    printRow(y);
  }
  return true;
}

void RasterPages::printRow(std::uint32_t y) {
  for (std::uint32_t x = 0; x < mHeader.cupsWidth; ++x) {
    if (isInk(x, y)) mLabel.ink(mLeft + x, mTop + y);
  }
}

bool RasterPages::isInk(std::uint32_t x, std::uint32_t y) const {
  const unsigned value = mRow[x];
  const unsigned light = blackIsZero(colorSpaceOf(mHeader)) ? value : 255 - value;
  const auto& row = kPattern[y % kPattern.size()];
  return light < (mHalftone == Halftone::Sharp ? kMiddle : row[x % row.size()]);
}

}  // namespace cutline::printer
