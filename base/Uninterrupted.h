// Calls of the system that a signal may break off.
#pragma once

#include <cerrno>

namespace cutline {

// What the call answers once it is not broken off; it is made again as often as that takes.
template <typename Call>
auto uninterrupted(const Call& call) {
  auto answer = call();
  while (answer < 0 && errno == EINTR) answer = call();
  return answer;
}

}  // namespace cutline
