#include "platform/LocalNotificationCenter.h"

#include <utility>

namespace cutline {
namespace {

// Whether `filter`, where it names an object, names this one.
bool covers(const NotificationObject& filter, const NotificationObject& object) {
  return std::holds_alternative<std::monostate>(filter) || filter == object;
}

}  // namespace

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
