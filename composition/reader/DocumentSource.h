// A document that has been opened: pages that can be drawn on labels.
#pragma once

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "composition/Layout.h"

namespace cutline {

class LabelWriter;

inline constexpr double kLargestPage = 14400;  // points, each way
inline constexpr int kMostPages = 20000;

// A page on its way to a label.
struct DrawnPage {
  QPDFObjectHandle form;  // a form XObject of the labels' PDF
  // From the form's coordinates to those with the origin in the shown page's lower left corner.
  QPDFMatrix matrix;
};

// Every call throws what DocumentComposer makes a failure of: a Refusal, or what the library that
// reads the document throws. Pages count from 0. It outlives the writing of the PDF that its forms
// went into: they hold what they draw by reference.
class DocumentSource {
 public:
  virtual ~DocumentSource() = default;

  virtual int pageCount() = 0;
  virtual PageSize pageSize(int page) = 0;
  virtual DrawnPage draw(int page, LabelWriter& labels) = 0;
};

}  // namespace cutline
