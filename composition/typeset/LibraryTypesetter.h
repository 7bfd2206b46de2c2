// The typesetter on Pango, Cairo and librsvg.
#pragma once

#include "composition/typeset/Typesetter.h"

namespace cutline {

class LibraryTypesetter : public Typesetter {
 public:
  bool setText(std::string_view text, const TextRoom& room, const TextSettings& settings, int most,
               TypesetPages& pages, TypesetProblem& problem) noexcept override;
  bool setDrawing(std::string_view svg, TypesetPages& pages,
                  TypesetProblem& problem) noexcept override;
};

}  // namespace cutline
