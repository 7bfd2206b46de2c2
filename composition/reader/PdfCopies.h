// Objects of one PDF for use in another.
#pragma once

#include <qpdf/QPDF.hh>

namespace cutline {

// The object with all that it refers to. What several copies refer to is copied once; a page is
// copied as null. The PDF that `object` is of outlives `into`: streams are read from it when they
// are written.
QPDFObjectHandle copiedInto(QPDF& into, QPDFObjectHandle object);

}  // namespace cutline
