#include "platform/ports/System.h"

#include "platform/ports/Platform.h"

namespace cutline {

OSStatus Gestalt(std::uint32_t selector, std::int32_t* response) noexcept {
  SystemVersion* version = currentPlatform().systemVersion;
  return version ? version->gestalt(selector, response) : gestaltUndefSelectorErr;
}

}  // namespace cutline
