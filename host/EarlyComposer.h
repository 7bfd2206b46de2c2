// A composer that is started before the program has its libraries, which take as long to load as
// the composer's own.
#pragma once

#include "composition/HelperSpawn.h"

namespace cutline {

// Starts a composer where these arguments, as main() has them, look as if documents were to be
// composed; a wrong guess costs no more than a program that ends unasked. No when there is none:
// the command itself starts one then, and tells what is wrong. Needs nothing but the C library.
bool startEarlyComposer(int argc, const char* const* argv, WaitingHelper& composer) noexcept;

}  // namespace cutline
