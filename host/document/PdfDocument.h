// A PDF file.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/core/DocumentRenderer.h"

namespace Poppler {
class Document;
}

namespace cutline {

class PdfDocument final : public Document {
 public:
  // A file that passed the check of documents; an error when it cannot be drawn all the same.
  static Result<std::shared_ptr<Document>> open(const std::string& path);

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
