// The PDF that goes to the printer: pages of exactly a label's size.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>

#include "composition/Layout.h"
#include "composition/reader/DocumentSource.h"

namespace cutline {

class LabelWriter {
 public:
  LabelWriter();

  // The PDF that forms and pictures are made in.
  QPDF& pdf() noexcept { return mPdf; }
  // What the pages that are added from now on are: labels of this size, all mirrored or none.
  void setLabel(const LabelPage& label, bool isMirrored);
  // A label with the page drawn on it as placed.
  void addPage(const DrawnPage& page, const Placement& placement);
  // From the coordinates of the page's form to those of the label.
  QPDFMatrix placing(const DrawnPage& page, const Placement& placement) const;
  // A layer that what was drawn belongs to; an object of this PDF.
  void addLayer(const QPDFObjectHandle& layer, bool isHidden);
  // To an open file, which stays the caller's. The same labels give the same bytes.
  void write(int output);

 private:
  QPDFMatrix mirror() const;
  QPDFObjectHandle contentStream(const std::string& content);

  QPDF mPdf;
  std::map<std::string, QPDFObjectHandle> mContents;
  LabelPage mLabel;
  bool mIsMirrored = false;
};

}  // namespace cutline
