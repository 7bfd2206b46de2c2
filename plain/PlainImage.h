// A picture of which only the file and the size are known.
#pragma once

#include <memory>
#include <string>

#include "platform/ports/Drawing.h"

namespace cutline {

class PlainImage final : public Image {
 public:
  // Null unless the file is there and is an SVG or PNG picture that tells its size.
  static std::shared_ptr<Image> load(const std::string& path);

  PlainImage(std::string path, const Size& size);
  Size size() const noexcept override { return mSize; }
  std::string path() const noexcept override { return mPath; }

 private:
  std::string mPath;
  Size mSize;
};

}  // namespace cutline
