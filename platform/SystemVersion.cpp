#include "platform/SystemVersion.h"

#include "platform/Platform.h"

namespace cutline {

SystemVersion::~SystemVersion() = default;

OSStatus Gestalt(std::uint32_t selector, std::int32_t* response) noexcept {
  SystemVersion* version = currentPlatform().systemVersion;
  return version ? version->gestalt(selector, response) : gestaltUndefSelectorErr;
}

}  // namespace cutline
