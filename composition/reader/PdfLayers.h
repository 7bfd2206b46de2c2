// A PDF's layers, which may hide what is drawn on them.
#pragma once

#include <qpdf/QPDF.hh>

#include "composition/reader/LabelWriter.h"

namespace cutline {

// Gives the labels the layers of a PDF, each shown or hidden as when that PDF is printed.
void copyLayers(QPDF& pdf, LabelWriter& labels);

}  // namespace cutline
