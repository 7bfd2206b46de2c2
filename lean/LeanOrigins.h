// The libraries that a lean part was made with.
#pragma once

#include <span>
#include <string_view>

#include "lean/LeanParts.h"

namespace cutline {

// A library whose code is in a lean part, and its build id, as the linker wrote it (GNU's note).
struct LeanOrigin {
  const char* library;
  std::string_view buildId;
};

// None where this build has no lean parts.
std::span<const LeanOrigin> originsOf(LeanPart part) noexcept;

// Whether each of these is installed as it was. No for none.
bool areInstalled(std::span<const LeanOrigin> origins) noexcept;

}  // namespace cutline
