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
#include "composition/reader/PdfFrame.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

class PdfSource : public DocumentSource {
 public:
  // From an open file, which stays the caller's and is read from as long as this lives. Only so
  // many first pages are `needed`; 0 for all.
  PdfSource(int descriptor, int needed);
  // From what a typesetter made.
  explicit PdfSource(TypesetPages pages);

  // Only the first pages were looked for: no other may be asked for, and how many there are is what
  // the PDF says.
  bool isPartial() const noexcept { return mPageCount > static_cast<int>(mPages.size()); }
  int pageCount() override { return mPageCount; }
  PageSize pageSize(int page) override;
  DrawnPage draw(int page, LabelWriter& labels) override;
  // Makes what takes long of a page that may be drawn, the form of its content, and gives it.
  QPDFObjectHandle drawAhead(int page, LabelWriter& labels);

 private:
  // Refuses what must not be printed, and finds the pages.
  void open(int needed);
  void findPages(int needed);
  QPDFObjectHandle contentOf(int page, const PdfFrame& frame, LabelWriter& labels);
  QPDFPageObjectHelper& pageAt(int page) { return mPages.at(static_cast<std::size_t>(page)); }

  TypesetPages mBytes;
  QPDF mPdf;
  std::vector<QPDFPageObjectHelper> mPages;
  int mPageCount = 0;
  std::optional<PdfAnnotations> mAnnotations;
  std::map<std::string, QPDFObjectHandle> mContents;  // by contentKey(): pages may share theirs
};

}  // namespace cutline
