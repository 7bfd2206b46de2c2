// The confined program that composes, beside the modules.
#pragma once

namespace cutline {

inline constexpr char kComposerName[] = "cutline-compose";

}  // namespace cutline
