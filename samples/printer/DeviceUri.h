// Where the virtual printer stores what it prints: cutline-strip:/FOLDER[?pace=MILLISECONDS]
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cutline::printer {

inline constexpr std::string_view kDeviceScheme = "cutline-strip";

struct DeviceUri {
  std::string folder;  // absolute
  unsigned pace = 0;   // milliseconds that a label takes, to have time to watch, or to cancel
};

// None when the text is no such URI. Escapes like %20 are resolved.
std::optional<DeviceUri> deviceUriOf(std::string_view text);

}  // namespace cutline::printer
