#include "host/document/PlaceholderDocument.h"

#include <QCoreApplication>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <exception>

#include "host/document/page_image.h"

namespace cutline {
namespace {

constexpr Size kPage = {226.8, 79.4};  // 80 x 28 mm
constexpr double kMargin = 8;
constexpr double kTextHeight = 12;
constexpr QRgb kTextColour = 0xff5a5a5a;

QString text() {
  return QCoreApplication::translate("cutline::PlaceholderDocument",
                                     "No preview for this kind of document; it prints as it is");
}

QImage paint(double scale) {
  QImage sheet(static_cast<int>(std::lround(kPage.width * scale)),
               static_cast<int>(std::lround(kPage.height * scale)),
               QImage::Format_ARGB32_Premultiplied);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.scale(scale, scale);
  QFont font;
  font.setPixelSize(static_cast<int>(kTextHeight));
  painter.setFont(font);
  painter.setPen(QColor(kTextColour));
  const QRectF page(0, 0, kPage.width, kPage.height);
  painter.drawText(page.marginsRemoved({kMargin, kMargin, kMargin, kMargin}),
                   Qt::AlignCenter | Qt::TextWordWrap, text());
  return sheet;
}

}  // namespace

Size PlaceholderDocument::pageSize(int page) const noexcept { return page == 0 ? kPage : Size{}; }

Result<PageImage> PlaceholderDocument::render(int page, double scale) noexcept {
  if (const Result<Done> fits = checkPageImage(pageSize(page), scale); !fits) return fits.error();
  try {
    return pageImageFrom(paint(scale));
  } catch (const std::exception& reason) {
    return Error{
        Sentence(Phrase("document", "the page cannot be drawn: %1"), {std::string(reason.what())})};
  }
}

}  // namespace cutline
