#include "composition/LabelInk.h"

#include <algorithm>
#include <cmath>

namespace cutline {

namespace {

constexpr int kPaperWhite = 255;
constexpr int kFaint = 24;  // the edges of letters fade out; what is lighter than this is no ink
constexpr double kInkPixels = 250'000;  // of one label
constexpr double kMostInkScale = 3;     // pixels a point

// Columns and rows of a picture, the last of each included; none while right < left.
struct InkedBox {
  void take(int column, int row) {
    left = std::min(left, column);
    right = std::max(right, column);
    top = std::min(top, row);
    bottom = std::max(bottom, row);
  }
  bool isEmpty() const { return right < left; }

  int left, right, top, bottom;
};

InkedBox inkedBox(const PageImage& page) {
  InkedBox box{page.width, -1, page.height, -1};
  const std::size_t width = page.width;
  for (int row = 0; row < page.height; ++row) {
    for (int column = 0; column < page.width; ++column) {
      if (inkIn(page.pixels[width * row + column]) > kFaint) box.take(column, row);
    }
  }
  return box;
}

}  // namespace

int inkIn(std::uint32_t pixel) noexcept {
  // How bright each colour looks, of 32.
  constexpr std::uint32_t kRed = 11, kGreen = 16, kBlue = 5, kAll = 32;
  const std::uint32_t red = pixel >> 16U & 0xffU;
  const std::uint32_t green = pixel >> 8U & 0xffU;
  const std::uint32_t blue = pixel & 0xffU;
  return kPaperWhite - static_cast<int>((red * kRed + green * kGreen + blue * kBlue) / kAll);
}

// Rows count from the top, the label's coordinates from the bottom.
std::optional<Ink> inkOf(const PageImage& page, double scale, const LabelPage& label) {
  const InkedBox box = inkedBox(page);
  if (box.isEmpty()) return std::nullopt;
  const auto x = [&](int column) { return column / scale; };
  const auto y = [&](int row) { return label.length - row / scale; };
  return Ink{{x(box.left + 1), y(box.bottom), x(box.right), y(box.top + 1)},
             {x(box.left), y(box.bottom + 1), x(box.right + 1), y(box.top)}};
}

double inkScale(const LabelPage& label) {
  const double area = std::max(1.0, label.width * label.length);
  return std::min(kMostInkScale, std::sqrt(kInkPixels / area));
}

}  // namespace cutline
