#include "composition/reader/PdfNumbers.h"

#include <array>
#include <charconv>

namespace cutline {

std::string pdfNumber(double value) {
  // A double without an exponent has no more digits than that.
  std::array<char, 1100> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value + 0.0,
                                     std::chars_format::fixed);
  return {digits.data(), written.ptr};
}

QPDFObjectHandle pdfArray(std::initializer_list<double> values) {
  QPDFObjectHandle array = QPDFObjectHandle::newArray();
  for (const double value : values) array.appendItem(QPDFObjectHandle::newReal(pdfNumber(value)));
  return array;
}

QPDFObjectHandle pdfBox(const Area& area) {
  return pdfArray({area.left, area.bottom, area.right, area.top});
}

std::string concatenation(const QPDFMatrix& matrix) {
  std::string text;
  for (const double value : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f})
    text += pdfNumber(value) + ' ';
  return text + "cm ";
}

}  // namespace cutline
