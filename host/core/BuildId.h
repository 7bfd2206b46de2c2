// Which build a part of the program belongs to.
#pragma once

namespace cutline {

// The same text for parts whose shared headers and compiler were the same. Hidden, so that a module
// answers its own and not that of the program that loads it.
__attribute__((visibility("hidden"))) const char* buildId() noexcept;

// The section of a file that has the same text with its NUL, for who will not run the file.
inline constexpr char kBuildIdSection[] = "cutline_build";

}  // namespace cutline
