// Delivers named notifications to observers, at once and on the posting thread.
// LocalNotificationCenter implements it for programs of our own; a native shell would wrap the
// system's own.
#pragma once

#include <functional>
#include <string>
#include <variant>

namespace cutline {

// What a notification is about: nothing, an object by its identity (for a view always the address
// of its View), or a text.
using NotificationObject = std::variant<std::monostate, const void*, std::string>;

struct Notification {
  std::string name;
  NotificationObject object;
};

class NotificationCenter {
 public:
  using Handler = std::function<void(const Notification&)>;

  NotificationCenter() = default;
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;
  virtual ~NotificationCenter();

  // The centre of the process: exists once, in the platform's shared library.
  static NotificationCenter& defaultCenter() noexcept;

  // addObserver:selector:name:object:  `observer` is an identity for removal; `object` nothing
  // means notifications about any object.
  virtual void addObserver(const void* observer, Handler handler, const std::string& name,
                           const NotificationObject& object) noexcept = 0;
  // removeObserver:name:object:  `object` nothing removes the observer's registrations for the
  // name whatever their object. Safe while a notification is being delivered.
  virtual void removeObserver(const void* observer, const std::string& name,
                              const NotificationObject& object) noexcept = 0;
  // postNotificationName:object:
  virtual void postNotificationName(const std::string& name,
                                    const NotificationObject& object) noexcept = 0;
};

}  // namespace cutline
