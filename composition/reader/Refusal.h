// Why a document cannot be composed, thrown by what reads it and caught by DocumentComposer: the
// libraries that read along throw as well.
#pragma once

#include <string>
#include <utility>

#include "composition/Composition.h"

namespace cutline {

struct Refusal {
  DocumentProblem problem;
  std::string detail;  // as CompositionFailure has it
};

}  // namespace cutline
