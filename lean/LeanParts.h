// Parts that stand in the installation twice. Once as they are, on the installed libraries; and
// lean, with the code that they need of those libraries within, which begins in a third of the
// time. The lean one is for as long as those libraries are the very ones that it was made with:
// their next update counts at once, and what goes without the folder of the lean ones is slower, no
// less.
#pragma once

namespace cutline {

enum class LeanPart { printLibrary, composer };

// Below the folder of the program's parts.
inline constexpr char kLeanPrintLibrary[] = "lean/libcups.so.2";
inline constexpr char kLeanComposer[] = "lean/cutline-compose";

// Whether it may stand in for the other; no where this build has no lean parts, and where the
// environment names another library (LD_LIBRARY_PATH). Whether the file is there is not looked at.
// Needs nothing but the C library.
bool mayBeLean(LeanPart part) noexcept;

}  // namespace cutline
