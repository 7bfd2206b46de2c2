// What the strip shows: a whole job as it leaves the printer.
#pragma once

#include "composition/LabelPage.h"
#include "strip/CutPlan.h"

namespace cutline {

struct StripContent {
  LabelPage label;           // each one
  CutPlan plan;              // which labels, in their order, and where the knife falls
  bool hasDocument = false;  // or else the labels are empty

  friend bool operator==(const StripContent&, const StripContent&) = default;
};

}  // namespace cutline
