// Patience.
#pragma once

#include <functional>

namespace cutline::test {

inline constexpr int kLongWait = 20000;  // milliseconds

// Runs the event loop until the condition holds; false after that time. It is looked at after each
// event, and again and again without one.
bool waitUntil(const std::function<bool()>& condition, int milliseconds = kLongWait);

}  // namespace cutline::test
