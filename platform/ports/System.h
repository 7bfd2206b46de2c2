// The system that a bundle runs on: status codes, version, log.
#pragma once

#include <cstdint>
#include <string>

namespace cutline {

// Status codes of the platform's calls: 0 is success, everything else an error.
using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kPMGeneralError = -30870;
inline constexpr OSStatus kPMNoSuchEntry = -30874;
inline constexpr OSStatus kPMInvalidPrintSettings = -30875;
inline constexpr OSStatus kPMInvalidPageFormat = -30876;
inline constexpr OSStatus kPMValueOutOfRange = -30877;
inline constexpr OSStatus kPMInvalidPrintSession = -30879;
inline constexpr OSStatus kPMInvalidPrinter = -30880;
inline constexpr OSStatus kPMInvalidTicket = -30891;
inline constexpr OSStatus kPMInvalidPaper = -30897;
inline constexpr OSStatus gestaltUndefSelectorErr = -5551;

// A four-character selector.
constexpr std::uint32_t fourCharCode(const char (&code)[5]) noexcept {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) value = (value << 8) | static_cast<unsigned char>(code[i]);
  return value;
}

inline constexpr std::uint32_t gestaltSystemVersionMajor = fourCharCode("sys1");
inline constexpr std::uint32_t gestaltSystemVersionMinor = fourCharCode("sys2");
inline constexpr std::uint32_t gestaltSystemVersionBugFix = fourCharCode("sys3");

// The version of the print-dialog platform that the host implements. Implemented by the host's
// platform set (HostSystemVersion) and by tests.
class SystemVersion {
 public:
  virtual ~SystemVersion();
  // `response` is written only on success (0).
  virtual OSStatus gestalt(std::uint32_t selector, std::int32_t* response) noexcept = 0;
};

// Asks the current platform's SystemVersion.
OSStatus Gestalt(std::uint32_t selector, std::int32_t* response) noexcept;

// The system log. Implemented by the host's platform set and by tests.
class SystemLog {
 public:
  virtual ~SystemLog();
  // One message, UTF-8, without a line end; the log adds time and process.
  virtual void log(const std::string& message) noexcept = 0;
};

}  // namespace cutline
