// Asks the composer, a confined program of its own, for documents laid onto label pages.
#pragma once

#include <chrono>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

#include "base/Result.h"
#include "base/TemporaryFile.h"
#include "composition/Composition.h"

namespace cutline {

inline constexpr char kComposerName[] = "cutline-compose";

// A composed PDF in a private file that goes with the last who holds it.
struct ComposedDocument {
  std::shared_ptr<const TemporaryFile> file;
  CompositionReport report;  // without a failure
};

inline constexpr std::chrono::seconds kCompositionPatience{60};

// Runs the composer in `helperDirectory` on the files; the request's names are set here. Blocks for
// up to `patience`: never on the thread that draws. `stop` ends it early, with an error. Errors
// name the document and the reason, also when the program dies, is too slow, or gives no answer.
Result<ComposedDocument> compose(const std::string& helperDirectory,
                                 const std::vector<std::string>& paths, CompositionRequest request,
                                 std::stop_token stop = {},
                                 std::chrono::milliseconds patience = kCompositionPatience);

}  // namespace cutline
