// Times on standard output for the measuring programs: "MARK name milliseconds".
#pragma once

namespace cutline {

// Since the moment in the environment's LX_T0 (CLOCK_MONOTONIC, milliseconds), or else since the
// start of the process.
void printTime(const char* name);

// "MARK rss_MiB": the most memory that the process has held so far.
void printPeakMemory();

}  // namespace cutline
