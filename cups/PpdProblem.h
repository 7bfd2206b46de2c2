// Why libcups could not read a PPD, in words that help whoever wrote the PPD.
#pragma once

#include <string>
#include <string_view>

#include "base/Result.h"

namespace cutline {

// To be called right after the reading failed, on the same thread. `name` is what people call the
// PPD; `text` is its contents, or empty where they cannot be read again.
Error ppdProblem(const Sentence& name, std::string_view text);

}  // namespace cutline
