#include "qt/QtImage.h"

namespace cutline {

QtImage::QtImage(const std::string& path) : mPicture(path) {}

Size QtImage::size() const noexcept {
  const QSizeF size = mPicture.size();
  return {size.width(), size.height()};
}

}  // namespace cutline
