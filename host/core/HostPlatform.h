// The ports that every toolkit shares, made current together with a toolkit for as long as this
// object lives.
#pragma once

#include <memory>

#include "platform/ports/Platform.h"
#include "platform/ports/System.h"

namespace cutline {

// The version of the print-dialog platform that this host implements: 11.0.0. The kernel's version
// says nothing about it.
class HostSystemVersion final : public SystemVersion {
 public:
  OSStatus gestalt(std::uint32_t selector, std::int32_t* response) noexcept override;
};

// The system's log (syslog), under the program's name.
class HostSystemLog final : public SystemLog {
 public:
  void log(const std::string& message) noexcept override;
};

class HostPlatform {
 public:
  // `toolkit` is borrowed and outlives this.
  explicit HostPlatform(Toolkit& toolkit);
  ~HostPlatform();
  HostPlatform(const HostPlatform&) = delete;
  HostPlatform& operator=(const HostPlatform&) = delete;

 private:
  HostSystemVersion mVersion;
  HostSystemLog mLog;
  std::unique_ptr<TextEncodings> mEncodings;
  Platform mPrevious;
};

}  // namespace cutline
