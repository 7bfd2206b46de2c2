// Labels whose printable area is one grey.
#pragma once

#include <cmath>

#include "composition/LabelPage.h"
#include "host/dialog/Document.h"

namespace cutline {

class FakeDocument final : public Document {
 public:
  static constexpr std::uint32_t kColour = 0xff606060;
  static constexpr std::uint32_t kWhite = 0xffffffff;

  // `bleed` points beyond the printable area are grey, too.
  FakeDocument(int pages, const LabelPage& label, double bleed = 0)
      : mPages(pages), mLabel(label), mBleed(bleed) {}

  int pageCount() const noexcept override { return mPages; }
  Size pageSize(int page) const noexcept override {
    return page >= 0 && page < mPages ? Size{mLabel.width, mLabel.length} : Size{};
  }
  Result<PageImage> render(int page, double scale) noexcept override {
    if (page >= mPages) return Error{"there is no such page"};
    PageImage image{static_cast<int>(std::ceil(mLabel.width * scale)),
                    static_cast<int>(std::ceil(mLabel.length * scale)),
                    {}};
    for (int row = 0; row < image.height; ++row) {
      for (int column = 0; column < image.width; ++column) {
        const bool isInked = isGrey((column + 0.5) / scale, mLabel.length - (row + 0.5) / scale);
        image.pixels.push_back(isInked ? kColour : kWhite);
      }
    }
    return image;
  }

 private:
  bool isGrey(double x, double y) const {
    return x > mLabel.left - mBleed && x < mLabel.right + mBleed && y > mLabel.bottom - mBleed &&
           y < mLabel.top + mBleed;
  }

  int mPages;
  LabelPage mLabel;
  double mBleed;
};

}  // namespace cutline
