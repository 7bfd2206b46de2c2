// Calls that the system refuses, as one without them does or one that has no room left.
#pragma once

#include <cerrno>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace cutline::test {

struct Argument {
  unsigned index = 0;
  std::uint64_t value = 0;
};

struct RefusedCall {
  const char* name;                       // the kernel's
  std::optional<Argument> argument = {};  // with any, where it is absent
  int reason = EPERM;
};

// What `act` says in a process of its own that is refused the call, as is what it starts.
std::string saidWithout(const RefusedCall& call, const std::function<std::string()>& act);

}  // namespace cutline::test
