#include "host/dialog/LabelPicture.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace cutline {
namespace {

constexpr int kWhite = 255;
constexpr int kFaint = 24;  // the edges of letters fade out; what is lighter than this is no ink
// Of what will not be printed.
constexpr int kLostRed = 214;
constexpr int kLostOther = 58;
constexpr double kLostStrength = 0.8;

int inkIn(std::uint32_t pixel) { return kWhite - qGray(pixel); }

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

// Columns and rows of a picture, the last of each included; none while right < left.
struct Box {
  void take(int column, int row) {
    left = std::min(left, column);
    right = std::max(right, column);
    top = std::min(top, row);
    bottom = std::max(bottom, row);
  }
  bool isEmpty() const { return right < left; }

  int left, right, top, bottom;
};

Box inkedBox(const PageImage& page) {
  Box box{page.width, -1, page.height, -1};
  const std::size_t width = page.width;
  for (int row = 0; row < page.height; ++row) {
    for (int column = 0; column < page.width; ++column) {
      if (inkIn(page.pixels[width * row + column]) > kFaint) box.take(column, row);
    }
  }
  return box;
}

}  // namespace

QImage pictureOf(const PageImage& page, double scale, const LabelPage& label,
                 const PrinterLook& look) {
  QImage image = imageOf(page);
  if (look.isMonochrome) makeGrey(image);
  tintLost(image, Inside(label, scale));
  return label.upright == 0 ? image : image.transformed(QTransform().rotate(-label.upright));
}

// Rows count from the top, the label's coordinates from the bottom.
std::optional<Ink> inkOf(const PageImage& page, double scale, const LabelPage& label) {
  const Box box = inkedBox(page);
  if (box.isEmpty()) return std::nullopt;
  const auto x = [&](int column) { return column / scale; };
  const auto y = [&](int row) { return label.length - row / scale; };
  return Ink{{x(box.left + 1), y(box.bottom), x(box.right), y(box.top + 1)},
             {x(box.left), y(box.bottom + 1), x(box.right + 1), y(box.top)}};
}

}  // namespace cutline
