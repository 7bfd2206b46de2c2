// What stands on a PDF's pages beside their content: notes, stamps, the fields of a form.
#pragma once

#include <optional>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "composition/reader/PdfFrame.h"

namespace cutline {

class PdfAnnotations {
 public:
  // Of the pages of `pdf`, for labels of `labels`; both outlive this.
  PdfAnnotations(QPDF& pdf, QPDF& labels);

  // A form of the labels' PDF that draws the page's content, a form of it, too, and above it the
  // annotations that are printed; `content` itself where there are none.
  QPDFObjectHandle above(QPDFObjectHandle content, QPDFPageObjectHelper page,
                         const PdfFrame& frame);

 private:
  // The stream that draws an annotation, ready to be drawn as a form; no stream where there is
  // none.
  QPDFObjectHandle appearance(QPDFAnnotationObjectHelper& annotation);
  void completeField(QPDFAnnotationObjectHelper& annotation, QPDFObjectHandle appearance);

  QPDF& mLabels;
  std::optional<QPDFAcroFormDocumentHelper> mFields;
};

}  // namespace cutline
