// Work that may crash, hang or eat memory, done in a process of its own.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace cutline::fuzz {

struct Bounds {
  int seconds = 2;  // of the processor, for each piece of work
  int megabytes =
      1024;  // of addresses, for all of it; not under sanitizers, which need all there is
};

// A piece of work that ended its process.
struct Casualty {
  unsigned number = 0;
  std::string how;  // "signal 11", "took more than 2 s", "status 1"
};

// Does work(0), work(1), ... up to `count` in a child process, which no exception leaves; nothing
// when it came to its end without leaks. What waits for something for a minute counts as hanging,
// too. Sanitizers get ten times the time.
std::optional<Casualty> doGuarded(unsigned count, const std::function<void(unsigned)>& work,
                                  const Bounds& bounds = {});

}  // namespace cutline::fuzz
