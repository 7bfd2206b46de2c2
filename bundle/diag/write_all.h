// Plain writes to file descriptors.
#pragma once

#include <string_view>

namespace cutline {

// Writes until everything is written, also over short and interrupted writes; at an error it gives
// up. Whether everything was written.
bool writeAll(int descriptor, std::string_view bytes) noexcept;

}  // namespace cutline
