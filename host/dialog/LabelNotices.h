// What there is to say of how documents lie on their labels: which paper would fit, what is shrunk.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "composition/Composition.h"
#include "cups/PpdFile.h"

namespace cutline {

// The first of the papers that has the size of every page of the documents, turned or not; null
// where `current` has it, none does, or a page has no size of its own.
const PaperSize* betterPaper(const CompositionReport& report, const std::vector<PaperSize>& papers,
                             const PaperSize& current);

// Pages of a sheet for letters, made smaller.
struct ShrunkSheet {
  std::string name;  // "A4"
  int percent = 100;
};
// Nothing unless every page of the documents is one.
std::optional<ShrunkSheet> shrunkSheet(const CompositionReport& report);

}  // namespace cutline
