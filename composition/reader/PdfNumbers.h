// Numbers and matrices as a PDF has them, with all their digits.
#pragma once

#include <initializer_list>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>

#include "composition/Layout.h"

namespace cutline {

std::string pdfNumber(double value);
QPDFObjectHandle pdfArray(std::initializer_list<double> values);
QPDFObjectHandle pdfBox(const Area& area);

// "a b c d e f cm "
std::string concatenation(const QPDFMatrix& matrix);

}  // namespace cutline
