#include "platform/lib/LocalNotificationCenter.h"

#include <utility>

#include "platform/ports/Platform.h"

namespace cutline {
namespace {

// Whether `filter`, where it names an object, names this one.
bool covers(const NotificationObject& filter, const NotificationObject& object) {
  return std::holds_alternative<std::monostate>(filter) || filter == object;
}

// Never destroyed: objects that go while the process ends still unregister themselves.
NotificationCenter& centerOfProcess() noexcept {
  static NotificationCenter* const center = new LocalNotificationCenter;
  return *center;
}

}  // namespace

NotificationCenter& NotificationCenter::defaultCenter() noexcept {
  NotificationCenter* chosen = currentPlatform().notificationCenter;
  return chosen ? *chosen : centerOfProcess();
}

void LocalNotificationCenter::addObserver(const void* observer, Handler handler,
                                          const std::string& name,
                                          const NotificationObject& object) noexcept {
  if (!handler) return;
  mRegistrations.push_back(
      std::make_shared<Registration>(Registration{observer, std::move(handler), name, object}));
}

void LocalNotificationCenter::removeObserver(const void* observer, const std::string& name,
                                             const NotificationObject& object) noexcept {
  std::erase_if(mRegistrations, [&](const auto& registration) {
    registration->removed = registration->observer == observer && registration->name == name &&
                            covers(object, registration->object);
    return registration->removed;
  });
}

void LocalNotificationCenter::postNotificationName(const std::string& name,
                                                   const NotificationObject& object) noexcept {
  // Both are copied because a handler may change the list and destroy what the caller passed.
  const Notification notification{name, object};
  const auto registrations = mRegistrations;
  for (const auto& registration : registrations) {
    if (registration->removed || registration->name != notification.name) continue;
    if (covers(registration->object, notification.object)) registration->handler(notification);
  }
}

}  // namespace cutline
