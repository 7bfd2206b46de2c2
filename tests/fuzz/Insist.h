// What a fuzzer's target says must hold. It ends the program where it does not, as a fuzzer
// expects.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace cutline::fuzz {

inline void insist(bool holds, const std::string& what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what.c_str());
  std::abort();
}

}  // namespace cutline::fuzz
