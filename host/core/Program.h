// The program, from its arguments to its exit status, as the library that holds it shows it.
#pragma once

#include "composition/HelperSpawn.h"

namespace cutline {

inline constexpr char kProgramLibrary[] = "libcutline-host.so";
inline constexpr char kProgramRunSymbol[] = "CutlineRunProgram";

}  // namespace cutline

extern "C" {
// The arguments are main()'s. `composer` is one that was started already, and is taken over; null
// for none. Answers the exit status. Once only. Throws nothing.
int CutlineRunProgram(int argc, const char* const* argv,
                      const cutline::WaitingHelper* composer) noexcept;
}
