#include "host/document/ImageDocument.h"

#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <exception>

#include "host/core/DocumentCheck.h"
#include "host/document/page_image.h"

namespace cutline {
namespace {

constexpr double kPointsPerMetre = 72.0 / 0.0254;

QSize pixelsAt(const Size& size, double scale) {
  return {std::max(1, static_cast<int>(std::lround(size.width * scale))),
          std::max(1, static_cast<int>(std::lround(size.height * scale)))};
}

}  // namespace

bool ImageDocument::canRead(const QString& path) {
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  return reader.canRead();
}

Result<std::shared_ptr<Document>> ImageDocument::open(const std::string& path) {
  QImageReader reader(QString::fromStdString(path));
  reader.setDecideFormatFromContent(true);
  QImage image = reader.read();
  if (image.isNull()) {
    return unreadable(path, reader.errorString().toStdString());
  }
  return std::shared_ptr<Document>(std::make_shared<ImageDocument>(std::move(image)));
}

Size ImageDocument::pageSize(int page) const noexcept {
  if (page != 0) return {};
  return {mImage.width() * kPointsPerMetre / std::max(1, mImage.dotsPerMeterX()),
          mImage.height() * kPointsPerMetre / std::max(1, mImage.dotsPerMeterY())};
}

Result<PageImage> ImageDocument::render(int page, double scale) noexcept {
  const Size size = pageSize(page);
  if (const Result<Done> fits = checkPageImage(size, scale); !fits) return fits.error();
  try {
    return pageImageFrom(
        mImage.scaled(pixelsAt(size, scale), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  } catch (const std::exception& reason) {
    return Error{Sentence(Phrase("document", "the picture cannot be drawn: %1"),
                          {std::string(reason.what())})};
  }
}

}  // namespace cutline
