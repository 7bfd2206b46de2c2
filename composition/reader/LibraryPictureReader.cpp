#include "composition/reader/LibraryPictureReader.h"

#include "composition/reader/TiffSource.h"
#include "composition/reader/WebpSource.h"

namespace cutline {

std::unique_ptr<DocumentSource> LibraryPictureReader::open(DocumentKind kind, int descriptor) {
  if (kind == DocumentKind::tiff) return std::make_unique<TiffSource>(descriptor);
  return std::make_unique<WebpSource>(descriptor);
}

}  // namespace cutline
