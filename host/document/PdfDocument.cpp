#include "host/document/PdfDocument.h"

#include <poppler-qt6.h>

#include <QImage>
#include <QVariant>
#include <exception>

#include "host/core/DocumentCheck.h"
#include "host/document/page_image.h"

namespace cutline {
namespace {

constexpr double kPointsPerInch = 72.0;

// The library would write each flaw of a document to standard error.
void ignoreFlaw(const QString& /*message*/, const QVariant& /*closure*/) {}

Size sizeOfPage(const Poppler::Document& document, int page) {
  const std::unique_ptr<Poppler::Page> found = document.page(page);
  if (!found) return {};
  const QSizeF size = found->pageSizeF();
  return {size.width(), size.height()};
}

std::vector<Size> sizesOfPages(const Poppler::Document& document) {
  std::vector<Size> sizes;
  const int count = document.numPages();
  sizes.reserve(count > 0 ? count : 0);
  for (int page = 0; page < count; ++page) sizes.push_back(sizeOfPage(document, page));
  return sizes;
}

Error undrawable(int page) {
  return Sentence(Phrase("document", "page %1 cannot be drawn"), {std::to_string(page + 1)});
}

Error undrawable(int page, const std::string& reason) {
  return Sentence(Phrase("document", "page %1 cannot be drawn: %2"),
                  {std::to_string(page + 1), reason});
}

}  // namespace

Result<std::shared_ptr<Document>> PdfDocument::open(const std::string& path) {
  Poppler::setDebugErrorFunction(ignoreFlaw, {});
  std::unique_ptr<Poppler::Document> document =
      Poppler::Document::load(QString::fromStdString(path));
  if (!document || document->isLocked() || document->numPages() < 1) return damagedPdf(path);
  document->setRenderHint(Poppler::Document::Antialiasing);
  document->setRenderHint(Poppler::Document::TextAntialiasing);
  return std::shared_ptr<Document>(std::make_shared<PdfDocument>(std::move(document)));
}

PdfDocument::PdfDocument(std::unique_ptr<Poppler::Document> document)
    : mDocument(std::move(document)), mSizes(sizesOfPages(*mDocument)) {}

PdfDocument::~PdfDocument() = default;

Size PdfDocument::pageSize(int page) const noexcept {
  return page < 0 || page >= pageCount() ? Size{} : mSizes[page];
}

Result<PageImage> PdfDocument::render(int page, double scale) noexcept {
  if (const Result<Done> fits = checkPageImage(pageSize(page), scale); !fits) return fits.error();
  try {
    const std::unique_ptr<Poppler::Page> found = mDocument->page(page);
    const double resolution = kPointsPerInch * scale;
    const QImage image = found ? found->renderToImage(resolution, resolution) : QImage();
    if (image.isNull()) return undrawable(page);
    return pageImageFrom(image);
  } catch (const std::exception& reason) {
    return undrawable(page, reason.what());
  }
}

}  // namespace cutline
