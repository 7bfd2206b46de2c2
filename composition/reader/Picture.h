// A picture as a page.
#pragma once

#include <cstdint>
#include <qpdf/QPDF.hh>
#include <string>

#include "composition/reader/DocumentSource.h"

namespace cutline {

struct PictureFacts {
  std::uint32_t width = 0;  // pixels, as stored
  std::uint32_t height = 0;
  // Dots per inch as stored; 0 where the picture does not say.
  double acrossDensity = 0;
  double alongDensity = 0;
  // How the stored picture is turned to be looked at, from 1, which is not at all, to 8: as Exif
  // and TIFF say it.
  int orientation = 1;
};

// Throws a Refusal for a picture without pixels, or with more than memory has room for.
void refuseUnlikelySize(std::uint64_t width, std::uint64_t height);

// Of the picture as looked at. A density that gives a page larger than there can be counts as none.
PageSize picturePage(const PictureFacts& facts);

// The page that shows an image, which is an XObject of the PDF.
DrawnPage drawnPicture(QPDF& pdf, const QPDFObjectHandle& image, const PictureFacts& facts);

}  // namespace cutline
