// The real program of the build tree.
#pragma once

#include <string>

#include "tests/support/Command.h"

namespace cutline::test {

// `words` as typed in a shell. The dialog, where one is shown, needs no display. `before` are
// settings of the environment, as in "LD_DEBUG=files".
CommandResult runProgram(const std::string& words, const std::string& before = {});

}  // namespace cutline::test
