// The pages of a CUPS raster stream as dots on labels.
#pragma once

#include <cups/raster.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "samples/printer/Bitmap.h"

namespace cutline::printer {

// How grey becomes black or white.
enum class Halftone {
  Sharp,  // darker than the middle is black
  Dots,   // an ordered pattern of dots
};

class RasterPages {
 public:
  // Reads from a descriptor that stays the caller's.
  RasterPages(int descriptor, Halftone halftone);

  // Reads the next page. No at the end of the stream, and on a page that can't be printed: then
  // problem() says why.
  bool next();
  const std::string& problem() const { return mProblem; }

  // The page just read: its whole label, the margins that a print head can't reach included.
  const Bitmap& label() const { return mLabel; }
  std::uint32_t dotsAcross() const { return mHeader.HWResolution[0]; }
  std::uint32_t dotsAlong() const { return mHeader.HWResolution[1]; }

 private:
  bool headerIsUsable();
  bool refuse(std::string problem);
  bool readRows();
  void printRow(std::uint32_t y);
  bool isInk(std::uint32_t x, std::uint32_t y) const;

  std::unique_ptr<cups_raster_t, decltype(&cupsRasterClose)> mRaster;
  Halftone mHalftone;
  cups_page_header2_t mHeader{};
  std::vector<unsigned char> mRow;
  std::int64_t mLeft = 0;  // dots between the label's edge and the first dot of a raster row
  std::int64_t mTop = 0;
  Bitmap mLabel;
  std::string mProblem;
};

}  // namespace cutline::printer
