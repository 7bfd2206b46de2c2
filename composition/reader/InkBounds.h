// Whether what forms draw surely stays within an area, as their contents tell without being drawn.
#pragma once

#include <map>
#include <optional>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "composition/LabelPage.h"
#include "composition/reader/InkArea.h"
#include "composition/reader/InkWork.h"

namespace cutline {

class InkBounds {
 public:
  // Finds what is asked of the form later. Throws nothing.
  void read(QPDFObjectHandle form) { of(std::move(form)); }
  // Whether the label's printer reaches all that the form draws where the matrix puts it, as far as
  // this can be told; false where it cannot.
  bool arePrintable(QPDFObjectHandle form, const QPDFMatrix& matrix, const LabelPage& label);

 private:
  // In the coordinates that the form is drawn in; nothing where it cannot be told.
  const std::optional<InkArea>& of(QPDFObjectHandle form);

  InkWork mWork;
  std::map<QPDFObjGen, std::optional<InkArea>> mKnown;
};

}  // namespace cutline
