// A picture of which only the file is known, and its size once somebody asks.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/ports/Drawing.h"

namespace cutline {

class PlainImage final : public Image {
 public:
  // Null where no file of a picture's size stands.
  static std::shared_ptr<Image> of(const std::string& path);

  explicit PlainImage(std::string path);
  PlainImage(std::string path, const Size& size);
  // Empty unless the file is an SVG or PNG picture that tells its size.
  Size size() const noexcept override;
  std::string path() const noexcept override { return mPath; }

 private:
  std::string mPath;
  mutable std::optional<Size> mSize;  // read at the first question
};

}  // namespace cutline
