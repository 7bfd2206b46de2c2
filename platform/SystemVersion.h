// The version of the print-dialog platform that the host implements. Implemented by the host's
// platform set (HostSystemVersion) and by tests.
#pragma once

#include <cstdint>

#include "platform/OSStatus.h"

namespace cutline {

// A four-character selector.
constexpr std::uint32_t fourCharCode(const char (&code)[5]) noexcept {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) value = (value << 8) | static_cast<unsigned char>(code[i]);
  return value;
}

inline constexpr std::uint32_t gestaltSystemVersionMajor = fourCharCode("sys1");
inline constexpr std::uint32_t gestaltSystemVersionMinor = fourCharCode("sys2");
inline constexpr std::uint32_t gestaltSystemVersionBugFix = fourCharCode("sys3");

class SystemVersion {
 public:
  virtual ~SystemVersion();
  // `response` is written only on success (0).
  virtual OSStatus gestalt(std::uint32_t selector, std::int32_t* response) noexcept = 0;
};

// Asks the current platform's SystemVersion.
OSStatus Gestalt(std::uint32_t selector, std::int32_t* response) noexcept;

}  // namespace cutline
