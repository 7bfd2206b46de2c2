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
  // `pdf` outlives this.
  explicit PdfAnnotations(QPDF& pdf);

  // A form that draws the page's content and, above it, the annotations that are printed; `content`
  // itself where there are none.
  QPDFObjectHandle above(QPDFObjectHandle content, QPDFPageObjectHelper page,
                         const PdfFrame& frame);

 private:
  // The stream that draws an annotation, ready to be drawn as a form; no stream where there is
  // none.
  QPDFObjectHandle appearance(QPDFAnnotationObjectHelper& annotation);
  void completeField(QPDFAnnotationObjectHelper& annotation, QPDFObjectHandle appearance);

  QPDF& mPdf;
  std::optional<QPDFAcroFormDocumentHelper> mFields;
};

}  // namespace cutline
