// The labels of a composed document, each a page of exactly the paper's size.
#pragma once

#include "host/dialog/Composing.h"

namespace cutline {

class ComposedPages final : public Document {
 public:
  static Result<std::shared_ptr<Document>> open(const std::string& helperDirectory,
                                                const ComposedDocument& composed);

  ComposedPages(std::shared_ptr<PageDrawer> drawer, const LabelPage& label);

  int pageCount() const noexcept override { return mDrawer->pageCount(); }
  Size pageSize(int page) const noexcept override;
  Result<PageImage> render(int page, double scale) noexcept override;

 private:
  std::shared_ptr<PageDrawer> mDrawer;
  Size mSize;
};

}  // namespace cutline
