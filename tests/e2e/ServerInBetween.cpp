#include "tests/e2e/ServerInBetween.h"

#include <chrono>
#include <thread>

namespace cutline::test {

void waitInBackground(const std::function<bool()>& condition) {
  using namespace std::chrono_literals;
  const auto deadline = std::chrono::steady_clock::now() + 20s;
  while (!condition() && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(10ms);
}

}  // namespace cutline::test
