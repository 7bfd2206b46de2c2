#include "host/dialog/LabelPicture.h"

#include <QTransform>
#include <cmath>
#include <cstring>

#include "composition/LabelInk.h"

namespace cutline {
namespace {

constexpr int kWhite = 255;
// Of what will not be printed.
constexpr int kLostRed = 214;
constexpr int kLostOther = 58;
constexpr double kLostStrength = 0.8;

QRgb lost(int ink) {
  const double share = kLostStrength * ink / kWhite;
  const auto mixed = [share](int colour) {
    return static_cast<int>(std::lround(kWhite + (colour - kWhite) * share));
  };
  return qRgb(mixed(kLostRed), mixed(kLostOther), mixed(kLostOther));
}

// Pixels that can be printed, at least in part.
struct Inside {
  Inside(const LabelPage& label, double scale)
      : left(static_cast<int>(std::floor(label.left * scale))),
        right(static_cast<int>(std::ceil(label.right * scale)) - 1),
        top(static_cast<int>(std::floor((label.length - label.top) * scale))),
        bottom(static_cast<int>(std::ceil((label.length - label.bottom) * scale)) - 1) {}
  bool contains(int column, int row) const {
    return column >= left && column <= right && row >= top && row <= bottom;
  }

  int left, right, top, bottom;
};

QImage imageOf(const PageImage& page) {
  QImage image(page.width, page.height, QImage::Format_ARGB32_Premultiplied);
  const std::size_t width = page.width;
  for (int row = 0; row < image.height(); ++row) {
    std::memcpy(image.scanLine(row), page.pixels.data() + width * row,
                width * sizeof(std::uint32_t));
  }
  return image;
}

template <typename Change>
void forEachPixel(QImage& image, const Change& change) {
  for (int row = 0; row < image.height(); ++row) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(row));
    for (int column = 0; column < image.width(); ++column) change(line[column], column, row);
  }
}

void makeGrey(QImage& image) {
  forEachPixel(image, [](QRgb& pixel, int, int) {
    const int grey = qGray(pixel);
    pixel = qRgb(grey, grey, grey);
  });
}

void tintLost(QImage& image, const Inside& inside) {
  forEachPixel(image, [&inside](QRgb& pixel, int column, int row) {
    const int ink = inkIn(pixel);
    if (ink > 0 && !inside.contains(column, row)) pixel = lost(ink);
  });
}

bool isGrey(const QImage& image) {
  QRgb colours = 0;
  for (int row = 0; row < image.height(); ++row) {
    const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
    for (int column = 0; column < image.width(); ++column)
      colours |= line[column] ^ (line[column] >> 8U);
  }
  return (colours & 0xffffU) == 0;
}

}  // namespace

QImage pictureOf(const PageImage& page, double scale, const LabelPage& label,
                 const PrinterLook& look) {
  QImage image = imageOf(page);
  if (look.isMonochrome) makeGrey(image);
  tintLost(image, Inside(label, scale));
  return label.upright == 0 ? image : image.transformed(QTransform().rotate(-label.upright));
}

QImage inkAlone(const QImage& picture) {
  const QImage image = picture.convertToFormat(QImage::Format_RGB32);
  if (!isGrey(image)) return image;
  QImage ink = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  forEachPixel(ink, [](QRgb& pixel, int, int) { pixel = qRgba(0, 0, 0, kWhite - qBlue(pixel)); });
  return ink;
}

}  // namespace cutline
