// A picture as a document of one page.
#pragma once

#include <QImage>
#include <QString>

#include "host/core/DocumentRenderer.h"

namespace cutline {

class ImageDocument final : public Document {
 public:
  // True when the file begins as a picture of a known kind; it may still be damaged.
  static bool canRead(const QString& path);
  // The error says that the file is damaged, or too large.
  static Result<std::shared_ptr<Document>> open(const std::string& path);

  explicit ImageDocument(QImage image) : mImage(std::move(image)) {}

  int pageCount() const noexcept override { return 1; }
  // At the resolution that the file states.
  Size pageSize(int page) const noexcept override;
  bool isPlaceholder() const noexcept override { return false; }
  Result<PageImage> render(int page, double scale) noexcept override;

 private:
  QImage mImage;
};

}  // namespace cutline
