// What there is to say of how documents lie on their labels: what would be cut off, which paper
// would fit, what is shrunk.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "composition/Composition.h"
#include "cups/PpdFile.h"
#include "host/dialog/LabelPicture.h"

namespace cutline {

// Labels whose ink reaches out of what can be printed, though a smaller size would save it.
struct EdgeLoss {
  std::vector<int> labels;  // from 0, never empty
  int percent = 100;        // of the documents' own sizes: with it nothing is cut off on any label
};
// By the inks of the labels that were looked at; nothing where all is well, where the documents are
// meant to be cut off, and of pages that are larger than their label even so.
std::optional<EdgeLoss> edgeLoss(const CompositionReport& report, const LayoutSettings& settings,
                                 const std::map<int, std::optional<Ink>>& inks);

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
