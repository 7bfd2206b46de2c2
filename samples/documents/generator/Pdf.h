// Drawings as a PDF document. Its letters are a font of outlines that the document brings along, so
// that it looks the same everywhere, and its text can still be searched.
#pragma once

#include <string>
#include <vector>

#include "samples/documents/generator/Drawing.h"
#include "samples/documents/generator/Face.h"

namespace cutline::documents {

// The bytes of the document, one page a drawing. The same input gives the same bytes.
std::string pdfOf(const std::vector<Drawing>& pages, const Faces& faces, const std::string& title);

}  // namespace cutline::documents
