#include "host/core/DocumentRenderer.h"
#include "host/document/FileRenderer.h"

namespace cutline {

std::uint32_t CutlineDocumentAbi() noexcept { return kDocumentAbiVersion; }

DocumentRenderer* CutlineDocumentRenderer() noexcept {
  static FileRenderer renderer;
  return &renderer;
}

}  // namespace cutline
