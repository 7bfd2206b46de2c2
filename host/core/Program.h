// The program, from its arguments to its exit status.
#pragma once

namespace cutline {

int runProgram(int argc, const char* const* argv);

}  // namespace cutline
