// What the module exports.
#include "composition/reader/LibraryPictureReader.h"

extern "C" cutline::PictureReader* CutlinePictureReader() noexcept {
  static cutline::LibraryPictureReader reader;
  return &reader;
}
