#include "composition/reader/PdfSource.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <utility>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/LabelWriter.h"
#include "composition/reader/PdfContents.h"
#include "composition/reader/PdfFirstPages.h"
#include "composition/reader/PdfLayers.h"
#include "composition/reader/PdfPageCount.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr char kDescription[] = "document";
// A file of up to so many bytes is read at once: looking into it here and there takes longer.
constexpr std::size_t kInMemory = std::size_t{16} * 1024 * 1024;

std::FILE* fileToRead(int descriptor) {
  const int own = ::dup(descriptor);
  std::FILE* file = own < 0 ? nullptr : ::fdopen(own, "rb");
  if (file != nullptr) return file;
  const Refusal refusal{DocumentProblem::broken, std::strerror(errno)};
  if (own >= 0) ::close(own);
  throw refusal;
}

}  // namespace

PdfSource::PdfSource(int descriptor, int needed) {
  mPdf.setSuppressWarnings(true);
  mBytes.pdf = startOf(descriptor, kInMemory + 1);
  if (mBytes.pdf.size() <= kInMemory) {
    mPdf.processMemoryFile(kDescription, mBytes.pdf.data(), mBytes.pdf.size());
  } else {
    mBytes.pdf = {};
    mPdf.processFile(kDescription, fileToRead(descriptor), /*close_file=*/true);
  }
  open(needed);
}

PdfSource::PdfSource(TypesetPages pages) : mBytes(std::move(pages)) {
  mPdf.setSuppressWarnings(true);
  mPdf.processMemoryFile(kDescription, mBytes.pdf.data(), mBytes.pdf.size());
  open(0);
}

void PdfSource::open(int needed) {
  if (!mPdf.allowPrintLowRes() && !mPdf.allowPrintHighRes())
    throw Refusal{DocumentProblem::unprintable, {}};
  findPages(needed);
  if (mPages.empty()) throw Refusal{DocumentProblem::empty, {}};
}

void PdfSource::findPages(int needed) {
  const std::optional<int> stated = keepFirstPages(mPdf, needed);
  if (!stated) refuseTooManyPages(mPdf);
  mPages = QPDFPageDocumentHelper(mPdf).getAllPages();
  mPageCount = stated.value_or(static_cast<int>(mPages.size()));
}

PageSize PdfSource::pageSize(int page) {
  PageSize size = pdfFrame(pageAt(page)).size;
  size.isStated = mBytes.isStated;
  return size;
}

DrawnPage PdfSource::draw(int page, LabelWriter& labels) {
  if (!mAnnotations) {
    mAnnotations.emplace(mPdf, labels.pdf());
    copyLayers(mPdf, labels);
  }
  const PdfFrame frame = pdfFrame(pageAt(page));
  return {mAnnotations->above(contentOf(page, frame, labels), pageAt(page), frame), frame.matrix};
}

QPDFObjectHandle PdfSource::drawAhead(int page, LabelWriter& labels) {
  return contentOf(page, pdfFrame(pageAt(page)), labels);
}

QPDFObjectHandle PdfSource::contentOf(int page, const PdfFrame& frame, LabelWriter& labels) {
  QPDFObjectHandle& content = mContents[contentKey(pageAt(page), frame)];
  if (!content.isInitialized()) content = contentForm(labels.pdf(), pageAt(page), frame);
  return content;
}

}  // namespace cutline
