// Stands for a document that prints but cannot be drawn here: one page that says so.
#pragma once

#include "host/core/DocumentRenderer.h"

namespace cutline {

class PlaceholderDocument final : public Document {
 public:
  int pageCount() const noexcept override { return 1; }
  Size pageSize(int page) const noexcept override;
  bool isPlaceholder() const noexcept override { return true; }
  Result<PageImage> render(int page, double scale) noexcept override;
};

}  // namespace cutline
