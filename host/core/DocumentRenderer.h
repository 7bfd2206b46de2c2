// Reads documents and draws their pages. Implemented by the document module
// (cutline-document.so, loaded on demand), used by the dialog's preview.
#pragma once

#include <memory>
#include <string>

#include "base/Result.h"
#include "composition/PageDrawer.h"
#include "platform/ports/Geometry.h"

namespace cutline {

// One open document. Calls may take long: never on the thread that draws. One call at a time.
class Document {
 public:
  Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  virtual ~Document() = default;

  virtual int pageCount() const noexcept = 0;  // 1 or more
  // In points; `page` counts from 0. An empty size for a page that does not exist.
  virtual Size pageSize(int page) const noexcept = 0;
  // True when the document prints but cannot be drawn (PostScript, text): its one page is a
  // placeholder.
  virtual bool isPlaceholder() const noexcept = 0;
  // Draws a page on white at `scale` pixels a point.
  virtual Result<PageImage> render(int page, double scale) noexcept = 0;
};

class DocumentRenderer {
 public:
  virtual ~DocumentRenderer() = default;
  // The error names the file and the reason.
  virtual Result<std::shared_ptr<Document>> open(const std::string& path) noexcept = 0;
};

inline constexpr char kDocumentModuleName[] = "cutline-document.so";
inline constexpr char kDocumentBuildSymbol[] = "CutlineDocumentBuild";
inline constexpr char kDocumentRendererSymbol[] = "CutlineDocumentRenderer";

extern "C" {
// Both exported by the module; the first is asked before the second and answers the module's
// buildId().
const char* CutlineDocumentBuild() noexcept;
// The module's renderer, borrowed; it lives as long as the process.
cutline::DocumentRenderer* CutlineDocumentRenderer() noexcept;
}

}  // namespace cutline
