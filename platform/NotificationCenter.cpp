#include "platform/NotificationCenter.h"

#include "platform/LocalNotificationCenter.h"
#include "platform/Platform.h"

namespace cutline {
namespace {

// Never destroyed: objects that go while the process ends still unregister themselves.
NotificationCenter& centerOfProcess() noexcept {
  static NotificationCenter* const center = new LocalNotificationCenter;
  return *center;
}

}  // namespace

NotificationCenter::~NotificationCenter() = default;

NotificationCenter& NotificationCenter::defaultCenter() noexcept {
  NotificationCenter* chosen = currentPlatform().notificationCenter;
  return chosen ? *chosen : centerOfProcess();
}

}  // namespace cutline
