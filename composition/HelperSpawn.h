// Starts a confined program with the C library alone, so that it can be done before other libraries
// are there.
#pragma once

#include <sys/types.h>

namespace cutline {

struct HelperStart {
  const char* program = nullptr;  // its path
  int input = -1;                 // becomes its standard input; borrowed, as the others are
  int output = -1;                // becomes its standard output
  int file = -1;  // becomes its descriptor 3 unless it is negative; it gets no other
};

// Does not wait for it. 0, or the system's reason (errno); then there is no process.
int spawnHelper(const HelperStart& start, pid_t& process) noexcept;

// A program that reads one request from a socket, its standard input, and answers it once. What is
// here is owned by who has it.
struct WaitingHelper {
  pid_t process = 0;  // its group is its own
  int request = -1;   // a socket; a pipe would end who writes to a program that has ended
  int answer = -1;    // the end of a pipe
};

// The same, with a socket and a pipe made for it.
int spawnWaitingHelper(const char* program, WaitingHelper& helper) noexcept;

}  // namespace cutline
