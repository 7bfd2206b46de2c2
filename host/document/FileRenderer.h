// Opens a document by what the file contains, whatever its name says.
#pragma once

#include "host/core/DocumentRenderer.h"

namespace cutline {

class FileRenderer final : public DocumentRenderer {
 public:
  // A missing, unreadable, empty, damaged or password-protected file is an error. What can be
  // printed but not drawn (PostScript, text) opens as a placeholder.
  Result<std::shared_ptr<Document>> open(const std::string& path) noexcept override;
};

}  // namespace cutline
