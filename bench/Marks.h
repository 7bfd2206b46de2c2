// What bench/launch reads of a program.
#pragma once

#include <QString>
#include <cstdio>
#include <ctime>

namespace cutline {

// Prints the milliseconds since the process was started.
inline void mark(const char* name) {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  const double milliseconds =
      static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
  std::printf("MARK %s %.3f\n", name, milliseconds - qEnvironmentVariable("LX_T0").toDouble());
  std::fflush(stdout);
}

}  // namespace cutline
