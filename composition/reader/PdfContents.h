// What a page of a PDF draws, as a form XObject of the labels' PDF.
#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "composition/reader/PdfFrame.h"

namespace cutline {

// Without the page's annotations. The content of one stream stays as it is, compressed; several are
// joined when they are written, never all at once in memory. The page's PDF outlives `labels`.
QPDFObjectHandle contentForm(QPDF& labels, QPDFPageObjectHelper page, const PdfFrame& frame);

// What tells a page's content from another page's.
std::string contentKey(QPDFPageObjectHelper page, const PdfFrame& frame);

// Makes a form of a stream; `resources` are of the same PDF.
void describeForm(QPDFObjectHandle form, const PdfFrame& frame, QPDFObjectHandle resources);

}  // namespace cutline
