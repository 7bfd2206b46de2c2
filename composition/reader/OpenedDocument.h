// A document, opened by what reads its kind.
#pragma once

#include <memory>

#include "composition/Composition.h"
#include "composition/reader/PdfSource.h"
#include "composition/reader/ReaderModules.h"
#include "composition/typeset/Typesetter.h"

namespace cutline {

struct OpenedDocument {
  std::unique_ptr<DocumentSource> source;
  LayoutSettings layout;   // of its pages
  bool isPartial = false;  // only as much was read as was asked for
};

// `descriptor` is an open file, which stays the caller's and open as long as the document. Throws
// as DocumentSource does, also where a module is missing.
OpenedDocument openDocument(int descriptor, const CompositionRequest& request,
                            const ReaderModules& modules);

// All of a PDF that was read before.
OpenedDocument openedBefore(std::unique_ptr<PdfSource> source, const CompositionRequest& request);

}  // namespace cutline
