#include "host/document/page_image.h"

#include <QImage>
#include <QPainter>
#include <cstring>

namespace cutline {
namespace {

constexpr double kMostPixels = 64e6;

QImage onWhite(const QImage& image) {
  QImage sheet(image.size(), QImage::Format_ARGB32_Premultiplied);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.drawImage(sheet.rect(), image);
  return sheet;
}

}  // namespace

PageImage pageImageFrom(const QImage& image) {
  const QImage sheet = onWhite(image);
  PageImage page{sheet.width(), sheet.height(), {}};
  const std::size_t width = page.width;
  page.pixels.resize(width * page.height);
  for (int row = 0; row < page.height; ++row) {
    std::memcpy(page.pixels.data() + width * row, sheet.constScanLine(row),
                width * sizeof(std::uint32_t));
  }
  return page;
}

Result<Done> checkPageImage(const Size& pageSize, double scale) {
  if (pageSize == Size{}) return Error{Phrase("document", "there is no such page")};
  const double pixels = pageSize.width * pageSize.height * scale * scale;
  if (scale > 0 && pixels > 0 && pixels <= kMostPixels) return Done{};
  return Error{Phrase("document", "the page cannot be drawn at this size")};
}

}  // namespace cutline
