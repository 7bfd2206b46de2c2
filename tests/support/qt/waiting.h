// Patience.
#pragma once

#include <functional>

namespace cutline::test {

// Runs the event loop until the condition holds; false after twenty seconds.
bool waitUntil(const std::function<bool()>& condition);

}  // namespace cutline::test
