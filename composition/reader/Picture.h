// A picture as a page.
#pragma once

#include <cstdint>
#include <qpdf/QPDF.hh>

#include "composition/reader/DocumentSource.h"
#include "composition/reader/PictureFacts.h"

namespace cutline {

// Throws a Refusal for a picture without pixels, or with more than memory has room for.
void refuseUnlikelySize(std::uint64_t width, std::uint64_t height);

// Of the picture as looked at. A density that gives a page larger than there can be counts as none.
PageSize picturePage(const PictureFacts& facts);

// The page that shows an image, which is an XObject of the PDF.
DrawnPage drawnPicture(QPDF& pdf, const QPDFObjectHandle& image, const PictureFacts& facts);

}  // namespace cutline
