// The processes that a test left running.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace cutline::test {

// Of this process; also those that ended and were not waited for.
std::vector<pid_t> childrenOfThisProcess();

// Whether there is such a process, and it has not ended.
bool isRunning(pid_t process);

// The names of the programs that run with this text in one of their variables.
std::vector<std::string> programsWithVariable(const std::string& text);

}  // namespace cutline::test
