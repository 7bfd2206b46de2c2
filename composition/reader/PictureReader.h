// Reads pictures of the kinds that labels seldom are. Implemented by a module of its own
// (cutline-picture-reader.so), loaded when a document asks for it: most jobs start without its
// libraries.
#pragma once

#include <memory>

#include "composition/reader/DocumentKind.h"

namespace cutline {

class DocumentSource;

class PictureReader {
 public:
  virtual ~PictureReader() = default;
  // A TIFF or a WebP, from an open file, which stays the caller's. Throws as DocumentSource does.
  virtual std::unique_ptr<DocumentSource> open(DocumentKind kind, int descriptor) = 0;
};

inline constexpr char kPictureReaderModuleName[] = "cutline-picture-reader.so";
inline constexpr char kPictureReaderSymbol[] = "CutlinePictureReader";

extern "C" {
// Exported by the module; borrowed, it lives as long as the process.
cutline::PictureReader* CutlinePictureReader() noexcept;
}

}  // namespace cutline
