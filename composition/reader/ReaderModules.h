// What reads kinds of documents that most jobs are not of, in modules of their own. Borrowed; null
// where a module is missing or not needed.
#pragma once

#include "composition/reader/DocumentKind.h"

namespace cutline {

class PictureReader;
class Typesetter;

struct ReaderModules {
  Typesetter* typesetter = nullptr;
  PictureReader* pictures = nullptr;
};

inline constexpr bool needsTypesetter(DocumentKind kind) {
  return kind == DocumentKind::text || kind == DocumentKind::svg;
}

inline constexpr bool needsPictureReader(DocumentKind kind) {
  return kind == DocumentKind::tiff || kind == DocumentKind::webp;
}

inline constexpr bool needsModule(DocumentKind kind) {
  return needsTypesetter(kind) || needsPictureReader(kind);
}

// Puts the module that such a document needs where it is missing, if there is one.
using ModuleLoader = void (*)(DocumentKind kind, ReaderModules& modules);

}  // namespace cutline
