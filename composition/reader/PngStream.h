// The pixels of a PNG as they are packed, which a PDF can hold as well.
#pragma once

#include <png.h>

#include <qpdf/QPDF.hh>
#include <string_view>

namespace cutline {

// Whether a PDF can hold the pixels: row by row from above, at most a byte a colour, nothing seen
// through.
bool canGoAlong(png_structp png, png_infop info);

// An image with the packed pixels of a file that was read without a fault.
QPDFObjectHandle packedImage(QPDF& pdf, std::string_view file, png_structp png, png_infop info);

}  // namespace cutline
