// The notification centre for programs of our own: registrations in order, delivery at once and on
// the posting thread, one thread altogether.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/NotificationCenter.h"

namespace cutline {

class LocalNotificationCenter final : public NotificationCenter {
 public:
  void addObserver(const void* observer, Handler handler, const std::string& name,
                   const NotificationObject& object) noexcept override;
  void removeObserver(const void* observer, const std::string& name,
                      const NotificationObject& object) noexcept override;
  // Handlers may add, remove and post. An observer added meanwhile hears the next notification,
  // one removed meanwhile is not called any more.
  void postNotificationName(const std::string& name,
                            const NotificationObject& object) noexcept override;

 private:
  struct Registration {
    const void* observer;
    Handler handler;
    std::string name;
    NotificationObject object;
    bool removed = false;
  };

  std::vector<std::shared_ptr<Registration>> mRegistrations;
};

}  // namespace cutline
