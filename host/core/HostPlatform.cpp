#include "host/core/HostPlatform.h"

#include <syslog.h>

#include <array>

#include "plain/LocaleTextEncodings.h"

namespace cutline {

namespace {

struct VersionPart {
  std::uint32_t selector;
  std::int32_t value;
};
constexpr std::array<VersionPart, 3> kPlatformVersion = {{{gestaltSystemVersionMajor, 11},
                                                          {gestaltSystemVersionMinor, 0},
                                                          {gestaltSystemVersionBugFix, 0}}};

}  // namespace

OSStatus HostSystemVersion::gestalt(std::uint32_t selector, std::int32_t* response) noexcept {
  for (const VersionPart& part : kPlatformVersion) {
    if (part.selector != selector) continue;
    *response = part.value;
    return noErr;
  }
  return gestaltUndefSelectorErr;
}

void HostSystemLog::log(const std::string& message) noexcept {
  syslog(LOG_USER | LOG_NOTICE, "%s", message.c_str());
}

HostPlatform::HostPlatform(Toolkit& toolkit) : mEncodings(std::make_unique<LocaleTextEncodings>()) {
  openlog("cutline", LOG_PID, LOG_USER);
  Platform platform;
  platform.toolkit = &toolkit;
  platform.systemVersion = &mVersion;
  platform.systemLog = &mLog;
  platform.textEncodings = mEncodings.get();
  mPrevious = setCurrentPlatform(platform);
}

HostPlatform::~HostPlatform() {
  setCurrentPlatform(mPrevious);
  closelog();
}

}  // namespace cutline
