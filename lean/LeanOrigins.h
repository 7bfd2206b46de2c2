// The libraries that a lean part was made with.
#pragma once

#include <span>
#include <string_view>

#include "lean/LeanParts.h"

namespace cutline {

// A library whose code is in a lean part, or for which one stands in, and its build id, as the
// linker wrote it (GNU's note).
struct LeanOrigin {
  const char* library;
  std::string_view buildId;
};

// None where this build has no lean parts.
std::span<const LeanOrigin> originsOf(LeanPart part) noexcept;

// Those of lean/StandIns.h, each for itself.
std::span<const LeanOrigin> standInOrigins() noexcept;

// Whether the dynamic loader would take this very one: it is installed as it was, and the
// environment names no other.
bool isTheOneInUse(const LeanOrigin& origin) noexcept;

// Whether each of these is installed as it was. No for none.
bool areInstalled(std::span<const LeanOrigin> origins) noexcept;

}  // namespace cutline
