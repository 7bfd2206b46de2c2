// Writes CUPS raster files.
#pragma once

#include <cups/raster.h>

#include <functional>
#include <string>

namespace cutline::test {

// A page of tape 24 mm wide and 50 mm long at 180 dots an inch, with margins of 1 and 2 mm, in
// grey.
cups_page_header2_t tapePage();

// The light of a raster's pixel, 0 is black.
using Shading = std::function<unsigned char(unsigned x, unsigned y)>;

// `pages` pages with one header; of the last one only `rows` rows when given.
void writeRaster(const std::string& path, const cups_page_header2_t& header, int pages,
                 const Shading& shading, int rows = -1);

}  // namespace cutline::test
