// A text as the pages of a PDF.
#pragma once

#include <string_view>

#include "composition/typeset/Typesetter.h"

namespace cutline {

// As Typesetter::setText; throws where there is not enough memory.
bool textPages(std::string_view text, const TextRoom& room, const TextSettings& settings, int most,
               TypesetPages& pages, TypesetProblem& problem);

}  // namespace cutline
