// The libraries that a test's own process has loaded.
#pragma once

#include <fstream>
#include <string>

namespace cutline::test {

// Whether there is one with such a path, or a part of one.
inline bool isLoaded(const std::string& path) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find('/' + path) != std::string::npos) return true;
  return false;
}

}  // namespace cutline::test
