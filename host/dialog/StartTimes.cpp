#include "host/dialog/StartTimes.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <sstream>
#include <string>

namespace cutline {
namespace {

constexpr int kStartTimeField = 20;  // of /proc/self/stat, counted from the state after the name
constexpr double kKibPerMib = 1024.0;

double nowMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double processStartMilliseconds() {
  std::ifstream file("/proc/self/stat");
  std::string text((std::istreambuf_iterator<char>(file)), {});
  std::istringstream fields(text.substr(text.rfind(')') + 1));
  std::string field;
  for (int i = 0; i < kStartTimeField; ++i) fields >> field;
  return std::strtod(field.c_str(), nullptr) * 1e3 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double startMilliseconds() {
  const char* start = std::getenv("LX_T0");
  return start != nullptr ? std::strtod(start, nullptr) : processStartMilliseconds();
}

double peakMemoryMib() {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("VmHWM:")) return std::strtod(line.c_str() + 6, nullptr) / kKibPerMib;
  }
  return 0;
}

}  // namespace

void printTime(const char* name) {
  std::printf("MARK %s %.3f\n", name, nowMilliseconds() - startMilliseconds());
  std::fflush(stdout);
}

void printPeakMemory() {
  std::printf("MARK rss_MiB %.1f\n", peakMemoryMib());
  std::fflush(stdout);
}

}  // namespace cutline
