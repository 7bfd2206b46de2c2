// Pages that can be drawn, as the preview sees them.
#pragma once

#include "base/Result.h"
#include "composition/PageDrawer.h"
#include "platform/ports/Geometry.h"

namespace cutline {

// One open document. Calls may take long: never on the thread that draws. One call at a time.
class Document {
 public:
  Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  virtual ~Document() = default;

  virtual int pageCount() const noexcept = 0;  // 1 or more
  // In points; `page` counts from 0. An empty size for a page that does not exist.
  virtual Size pageSize(int page) const noexcept = 0;
  // Draws a page on white at `scale` pixels a point.
  virtual Result<PageImage> render(int page, double scale) noexcept = 0;
};

}  // namespace cutline
