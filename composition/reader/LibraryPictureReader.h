// The reader of pictures on the libraries of their kinds.
#pragma once

#include "composition/reader/PictureReader.h"

namespace cutline {

class LibraryPictureReader final : public PictureReader {
 public:
  std::unique_ptr<DocumentSource> open(DocumentKind kind, int descriptor) override;
};

}  // namespace cutline
