// Asks the composer, a confined program of its own, for documents laid onto label pages.
#pragma once

#include <chrono>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

#include "base/Result.h"
#include "base/TemporaryFile.h"
#include "composition/ComposerName.h"
#include "composition/Composition.h"
#include "composition/HelperExchange.h"

namespace cutline {

// A composed PDF in a private file that goes with the last who holds it.
struct ComposedDocument {
  std::shared_ptr<const TemporaryFile> file;
  CompositionReport report;  // without a failure
};

inline constexpr std::chrono::seconds kCompositionPatience{60};

// Takes over a composer that the program started before its libraries were loaded: whoever starts
// one next gets this one.
void keepEarlyComposer(const WaitingHelper& composer);

// A composer that is started before it is known what to ask of it: a program takes as long to start
// as to compose a few labels, and meanwhile others find the printer. The program ends with this.
class StartedComposer {
 public:
  // Opens the files and starts the composer in `helperDirectory`, which reads ahead what it can.
  // Does not wait for it; what goes wrong is told by compose().
  StartedComposer(const std::string& helperDirectory, std::vector<std::string> paths);
  StartedComposer(StartedComposer&&) noexcept;
  StartedComposer& operator=(StartedComposer&&) noexcept;
  ~StartedComposer();

  // The request's names are set here. Once only. Blocks for up to `patience`: never on the thread
  // that draws. `stop` ends it early, with an error. Errors name the document and the reason, also
  // when the program dies, is too slow, or gives no answer.
  Result<ComposedDocument> compose(CompositionRequest request, std::stop_token stop = {},
                                   std::chrono::milliseconds patience = kCompositionPatience);

 private:
  struct Running;
  static Result<std::unique_ptr<Running>> start(const std::string& helperDirectory,
                                                const std::vector<std::string>& paths);

  std::vector<std::string> mPaths;
  Result<std::unique_ptr<Running>> mRunning;
};

// Starts a composer and asks it at once.
Result<ComposedDocument> compose(const std::string& helperDirectory,
                                 const std::vector<std::string>& paths, CompositionRequest request,
                                 std::stop_token stop = {},
                                 std::chrono::milliseconds patience = kCompositionPatience);

}  // namespace cutline
