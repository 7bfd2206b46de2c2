// An image of the toolkit: a picture file that is read when it is first drawn.
#pragma once

#include <memory>
#include <string>

#include "platform/ports/Drawing.h"
#include "qt/QtPicture.h"

namespace cutline {

class QtImage : public Image {
 public:
  explicit QtImage(const std::string& path);

  Size size() const noexcept override;
  std::string path() const noexcept override { return mPicture.path(); }

  QtPicture& picture() const noexcept { return mPicture; }

 private:
  mutable QtPicture mPicture;  // reading and rendering are a cache behind a constant image
};

}  // namespace cutline
