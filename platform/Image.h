// A picture that a toolkit can draw. Implemented by each toolkit adapter.
#pragma once

#include <string>

#include "platform/Geometry.h"

namespace cutline {

class Image {
 public:
  Image() = default;
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;
  virtual ~Image();

  virtual Size size() const noexcept = 0;         // in points
  virtual std::string path() const noexcept = 0;  // the file it was made from
};

}  // namespace cutline
