#include "host/core/BuildId.h"
#include "host/core/DocumentRenderer.h"
#include "host/document/FileRenderer.h"

namespace cutline {

const char* CutlineDocumentBuild() noexcept { return buildId(); }

DocumentRenderer* CutlineDocumentRenderer() noexcept {
  static FileRenderer renderer;
  return &renderer;
}

}  // namespace cutline
