// Asks a print server whether anything has happened to its jobs, in place of asking for all of them
// again and again.
#pragma once

#include <chrono>

#include "cups/ServerOptions.h"

namespace cutline {

// A subscription to the server's events. It ends with this object, or some time after the process
// when that is killed.
class JobEvents {
 public:
  using Clock = std::chrono::steady_clock;

  explicit JobEvents(ServerOptions server) : mServer(std::move(server)) {}
  ~JobEvents();
  JobEvents(const JobEvents&) = delete;
  JobEvents& operator=(const JobEvents&) = delete;

  enum class News {
    none,
    some,     // or there may be: the subscription is new, because the server forgot the old one
    unknown,  // there is no subscription: the caller has to look for himself
    noServer
  };
  // May block on the server. Subscribes, and renews that, as it needs to. `now` is for tests.
  News look(Clock::time_point now = Clock::now());

  // 0 while there is no subscription.
  int subscription() const noexcept { return mSubscription; }

 private:
  News subscribe(Clock::time_point now);
  void renew(Clock::time_point now);

  ServerOptions mServer;
  int mSubscription = 0;
  int mNext = 1;  // the number of the first event that was not seen
  Clock::time_point mRenewal;
};

}  // namespace cutline
