// What of documents would be cut off at the edges of their labels.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "composition/Composition.h"
#include "composition/LabelInk.h"

namespace cutline {

// Labels whose ink reaches out of what can be printed, though a smaller size would save it.
struct EdgeLoss {
  std::vector<int> labels;  // from 0, never empty
  int percent = 100;        // of the documents' own sizes: with it nothing is cut off on any label
};
// Whether the ink of a page has to be known for that: where all of a page can be printed, so can
// its ink, and of one that is larger than its label nothing is said.
bool mayLoseEdges(const ComposedPage& page, const LabelPage& label, const LayoutSettings& settings);

// The labels that have to be looked at, from 0, of the first kMostInks.
std::vector<int> labelsAtTheirEdges(const CompositionReport& report,
                                    const LayoutSettings& settings);

// By the inks of the labels that were looked at; nothing where all is well, where the documents are
// meant to be cut off, and of pages that are larger than their label even so.
std::optional<EdgeLoss> edgeLoss(const CompositionReport& report, const LayoutSettings& settings,
                                 const std::map<int, std::optional<Ink>>& inks);

}  // namespace cutline
