// The pages of a PDF.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <string>
#include <vector>

#include "composition/reader/DocumentSource.h"
#include "composition/reader/PdfAnnotations.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

class PdfSource : public DocumentSource {
 public:
  // From an open file, which stays the caller's and is read from as long as this lives.
  explicit PdfSource(int descriptor);
  // From what a typesetter made.
  explicit PdfSource(TypesetPages pages);

  int pageCount() override { return static_cast<int>(mPages.size()); }
  PageSize pageSize(int page) override;
  DrawnPage draw(int page, LabelWriter& labels) override;

 private:
  // Refuses what must not be printed, and finds the pages.
  void open();
  QPDFPageObjectHelper& pageAt(int page) { return mPages.at(static_cast<std::size_t>(page)); }

  TypesetPages mBytes;
  QPDF mPdf;
  std::vector<QPDFPageObjectHelper> mPages;
  std::optional<PdfAnnotations> mAnnotations;
  std::map<std::string, QPDFObjectHandle> mContents;  // by contentKey(): pages may share theirs
};

}  // namespace cutline
