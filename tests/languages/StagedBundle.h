// The cut options bundle as the build made it.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/ports/Bundle.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {

inline constexpr char kPlugInDirectory[] = CUTLINE_BUILD_DIR "/lib/cutline/plugins";

std::string stagedBundlePath();

// Opened by a user whose languages these variables choose; what is not given is unset.
std::shared_ptr<Bundle> openStagedBundle(const test::ScopedEnvironment::Variables& variables);

// A language's string table, read as the bundle reads it; fails the test and is empty when that
// gives no dictionary of texts.
using StringTable = std::map<std::string, std::string>;
StringTable stringTable(const std::string& folder);

}  // namespace cutline
