// What people hear of documents that cannot be composed.
#pragma once

#include <string>
#include <vector>

#include "base/Result.h"
#include "composition/Composition.h"

namespace cutline {

// "cannot read the document "…": …", the same for every reason. `paths` are those that the reason
// may speak of; there is at least one.
Error unreadableDocuments(const std::vector<std::string>& paths, Sentence reason);

// The words for a failure and what helps.
Sentence reasonOf(const CompositionFailure& failure);

// What the end of a reader's process, as waitpid says it, tells of its document.
DocumentProblem problemOfEnd(int status);

}  // namespace cutline
