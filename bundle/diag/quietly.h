// What fails in a diagnostic costs its message and nothing else.
#pragma once

namespace cutline {

// Calls the function; whatever it throws (memory may be short, and a format may ask for much) ends
// here, as nothing is thrown out of the bundle.
template <typename Function>
void quietly(const Function& function) noexcept {
  try {
    function();
  } catch (...) {
  }
}

}  // namespace cutline
