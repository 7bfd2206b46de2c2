// The part of a PDF's page that is shown, and how.
#pragma once

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "composition/Layout.h"

namespace cutline {

struct PdfFrame {
  Area box;          // in the page's own coordinates
  int rotation = 0;  // clockwise degrees: 0, 90, 180 or 270
  PageSize size;     // as shown
  // From the page's own coordinates to those with the origin in the shown page's lower left corner.
  QPDFMatrix matrix;
};

// Throws a Refusal for a page of no size, or of one that no paper has.
PdfFrame pdfFrame(QPDFPageObjectHelper page);

}  // namespace cutline
