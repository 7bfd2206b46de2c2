// A document of equal pages, all of one colour.
#pragma once

#include "host/core/DocumentRenderer.h"

namespace cutline {

class FakeDocument final : public Document {
 public:
  static constexpr Size kPage = {141.7, 68.0};  // 50 x 24 mm
  static constexpr std::uint32_t kColour = 0xff2060a0;

  explicit FakeDocument(int pages) : mPages(pages) {}

  int pageCount() const noexcept override { return mPages; }
  Size pageSize(int page) const noexcept override {
    return page >= 0 && page < mPages ? kPage : Size{};
  }
  bool isPlaceholder() const noexcept override { return false; }
  Result<PageImage> render(int page, double scale) noexcept override {
    if (page >= mPages) return Error{"there is no such page"};
    PageImage image{
        static_cast<int>(kPage.width * scale), static_cast<int>(kPage.height * scale), {}};
    image.pixels.assign(static_cast<std::size_t>(image.width) * image.height, kColour);
    return image;
  }

 private:
  int mPages;
};

}  // namespace cutline
