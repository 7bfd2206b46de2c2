// An SVG drawing as a page of a PDF.
#pragma once

#include <string_view>

#include "composition/typeset/Typesetter.h"

namespace cutline {

// As Typesetter::setDrawing; throws where there is not enough memory. Nothing that the drawing
// refers to outside itself is looked at.
bool drawingPage(std::string_view svg, TypesetPages& pages, TypesetProblem& problem);

}  // namespace cutline
