#include "platform/ports/Platform.h"

#include <utility>

namespace cutline {
namespace {

Platform& current() noexcept {
  static Platform platform;
  return platform;
}

}  // namespace

const Platform& currentPlatform() noexcept { return current(); }

Platform setCurrentPlatform(const Platform& platform) noexcept {
  return std::exchange(current(), platform);
}

}  // namespace cutline
