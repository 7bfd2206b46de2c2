#include "tests/samples/RasterFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <vector>

namespace cutline::test {
namespace {

void writePage(cups_raster_t* raster, cups_page_header2_t header, const Shading& shading,
               unsigned rows) {
  cupsRasterWriteHeader2(raster, &header);
  std::vector<unsigned char> row(header.cupsBytesPerLine);
  for (unsigned y = 0; y < rows; ++y) {
    for (unsigned x = 0; x < header.cupsWidth && x < row.size(); ++x) row[x] = shading(x, y);
    cupsRasterWritePixels(raster, row.data(), header.cupsBytesPerLine);
  }
}

}  // namespace

cups_page_header2_t tapePage() {
  cups_page_header2_t header{};
  header.HWResolution[0] = header.HWResolution[1] = 180;
  header.cupsPageSize[0] = 68.03F;
  header.cupsPageSize[1] = 141.73F;
  header.cupsImagingBBox[0] = 2.83F;
  header.cupsImagingBBox[1] = 5.67F;
  header.cupsImagingBBox[2] = 65.20F;
  header.cupsImagingBBox[3] = 136.06F;
  header.cupsWidth = header.cupsBytesPerLine = 156;
  header.cupsHeight = 326;
  header.cupsBitsPerColor = header.cupsBitsPerPixel = 8;
  header.cupsNumColors = 1;
  header.cupsColorSpace = CUPS_CSPACE_SW;
  return header;
}

void writeRaster(const std::string& path, const cups_page_header2_t& header, int pages,
                 const Shading& shading, int rows) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  cups_raster_t* raster = cupsRasterOpen(file, CUPS_RASTER_WRITE);
  for (int page = 1; page <= pages; ++page) {
    const bool cut = rows >= 0 && page == pages;
    writePage(raster, header, shading, cut ? static_cast<unsigned>(rows) : header.cupsHeight);
  }
  cupsRasterClose(raster);
  ::close(file);
}

}  // namespace cutline::test
