#include "host/document/FileRenderer.h"

#include <QString>
#include <exception>

#include "host/core/DocumentCheck.h"
#include "host/document/ImageDocument.h"
#include "host/document/PdfDocument.h"
#include "host/document/PlaceholderDocument.h"

namespace cutline {
namespace {

Result<std::shared_ptr<Document>> openFile(const std::string& path) {
  const QString file = QString::fromStdString(path);
  const Result<DocumentFacts> facts = checkDocument(path);
  if (!facts) return facts.error();
  if (facts->format == "application/pdf") return PdfDocument::open(path);
  const bool isPostScript = facts->format == "application/postscript";
  if (!isPostScript && ImageDocument::canRead(file)) return ImageDocument::open(path);
  return std::shared_ptr<Document>(std::make_shared<PlaceholderDocument>());
}

}  // namespace

Result<std::shared_ptr<Document>> FileRenderer::open(const std::string& path) noexcept {
  try {
    return openFile(path);
  } catch (const std::exception& reason) {
    return unreadable(path, std::string(reason.what()));
  }
}

}  // namespace cutline
