#include "host/dialog/ComposedPages.h"

#include <exception>
#include <utility>

namespace cutline {

Result<std::shared_ptr<Document>> ComposedPages::open(const std::string& helperDirectory,
                                                      const ComposedDocument& composed) {
  const auto drawer = PageDrawer::open(helperDirectory, composed.file);
  if (!drawer) return drawer.error();
  return std::shared_ptr<Document>(std::make_shared<ComposedPages>(*drawer, composed.report.label));
}

ComposedPages::ComposedPages(std::shared_ptr<PageDrawer> drawer, const LabelPage& label)
    : mDrawer(std::move(drawer)), mSize{label.width, label.length} {}

Size ComposedPages::pageSize(int page) const noexcept {
  return page >= 0 && page < pageCount() ? mSize : Size{};
}

Result<PageImage> ComposedPages::render(int page, double scale) noexcept {
  try {
    return mDrawer->draw(page, scale);
  } catch (const std::exception& reason) {
    return Error{Sentence(Phrase("document", "page %1 cannot be drawn: %2"),
                          {std::to_string(page + 1), std::string(reason.what())})};
  }
}

}  // namespace cutline
