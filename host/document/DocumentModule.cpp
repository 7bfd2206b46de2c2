#include "host/core/DocumentRenderer.h"
#include "host/document/FileRenderer.h"

std::uint32_t CutlineDocumentAbi() noexcept { return cutline::kDocumentAbiVersion; }

cutline::DocumentRenderer* CutlineDocumentRenderer() noexcept {
  static cutline::FileRenderer renderer;
  return &renderer;
}
