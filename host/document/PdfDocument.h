// A PDF file.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "host/core/DocumentRenderer.h"

namespace Poppler {
class Document;
}

namespace cutline {

class PdfDocument final : public Document {
 public:
  // The error says whether the file is damaged, locked by a password or without pages.
  static Result<std::shared_ptr<Document>> open(const QString& path);

  explicit PdfDocument(std::unique_ptr<Poppler::Document> document);
  ~PdfDocument() override;

  int pageCount() const noexcept override { return static_cast<int>(mSizes.size()); }
  Size pageSize(int page) const noexcept override;
  bool isPlaceholder() const noexcept override { return false; }
  Result<PageImage> render(int page, double scale) noexcept override;

 private:
  std::unique_ptr<Poppler::Document> mDocument;
  std::vector<Size> mSizes;
};

}  // namespace cutline
