// Patience.
#pragma once

#include <functional>

namespace cutline::test {

inline constexpr int kLongWait = 20000;  // milliseconds

// Runs the event loop until the condition holds; false after that time.
bool waitUntil(const std::function<bool()>& condition);

}  // namespace cutline::test
